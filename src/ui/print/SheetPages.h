#pragma once

#include "preview/sheets/DesignQueue.h"
#include "preview/sheets/Sheet.h"

#include <memory>
#include <optional>
#include <QImage>
#include <QObject>
#include <QTimer>

/**
 * The pages of a sheet, one at a time: reads the designs of the one that is looked at
 * without holding the window up, and paints what has come of them.
 */
class SheetPages : public QObject
{
    Q_OBJECT

public:
    explicit SheetPages(QObject *parent = nullptr);

    /** Shows the first page of another sheet. */
    void setSheet(const SheetDesigns &designs, const SheetOptions &options);

    bool hasPrevious() const;
    bool hasNext() const;
    /** Which page is shown, of how many. */
    QString place() const;
    /** Of the paper, in hundredths of a millimetre. */
    QSizeF paperSize() const;
    /** The page, as wide as @p width pixels. */
    QImage image(int width) const;

public slots:
    void showPrevious();
    void showNext();
    void showFirst();
    void showLast();

signals:
    /** Another page is shown, or more is to be seen of this one. */
    void changed();

private:
    void showSection(int section, bool lastPage);
    void takeDesigns();
    int pageCount() const;
    bool isComplete() const;

    SheetOptions m_options;
    std::unique_ptr<Sheet> m_sheet;
    std::optional<DesignQueue> m_queue;
    QTimer m_timer;
    QVector<DrawnDesign> m_drawn;
    int m_section = 0;
    int m_page = 0;
    // Known only when the designs are there.
    bool m_wantsLastPage = false;
};
