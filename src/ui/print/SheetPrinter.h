#pragma once

#include "preview/sheets/SheetDesigns.h"
#include "preview/sheets/SheetOptions.h"

#include <memory>
#include <QCoreApplication>
#include <QVector>

class IProgressAbortListener;
class QPrinter;
class QWidget;

/** Prints one sheet. */
class SheetPrinter
{
    Q_DECLARE_TR_FUNCTIONS(SheetPrinter)

public:
    explicit SheetPrinter(const SheetOptions &options);
    ~SheetPrinter();

    /** Lets the user choose a printer, and perhaps another paper; false when he does not. */
    bool choose(QWidget *parent);

    /**
     * False when the user has asked for the end; what is on its way to the printer then, it
     * may still print.
     * @throws Error
     */
    bool print(const SheetDesigns &designs, IProgressAbortListener &progress);

private:
    const SheetOptions m_options;
    const std::unique_ptr<QPrinter> m_printer;
};
