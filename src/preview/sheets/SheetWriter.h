#pragma once

#include "preview/sheets/Sheet.h"

#include <functional>
#include <QCoreApplication>

class IProgressAbortListener;
class QPagedPaintDevice;

/** Brings a sheet onto paper, section by section, with few designs in memory at a time. */
class SheetWriter
{
    Q_DECLARE_TR_FUNCTIONS(SheetWriter)

public:
    /** Both must outlive the writer. The listener hears a step for each design. */
    SheetWriter(const Sheet &sheet, IProgressAbortListener &progress);

    /**
     * Writes all pages. False when the user has asked for the end.
     * @param device what can be painted of its pages is the area of the sheet
     * @param check called after each page; throws Error to give up
     * @throws Error when the device takes no pages
     */
    bool write(QPagedPaintDevice &device, const std::function<void()> &check = {});

    /** How many pages are written. */
    int pageCount() const { return m_pageCount; }

private:
    class Pages;

    const Sheet &m_sheet;
    IProgressAbortListener &m_progress;
    int m_pageCount = 0;
};
