#include "preview/sheets/SheetWriter.h"

#include "base/Error.h"
#include "base/IProgressAbortListener.h"
#include "base/threads/ResponsiveWait.h"
#include "preview/sheets/DesignQueue.h"
#include "preview/sheets/PaperUnits.h"

#include <QPagedPaintDevice>
#include <QPainter>

/** The pages of a device, the first of which is there from the start. */
class SheetWriter::Pages
{
public:
    explicit Pages(QPagedPaintDevice &device) : m_device(device)
    {
        if (!m_painter.begin(&device))
            fail();
    }

    QPainter &next()
    {
        if (m_begun && !m_device.newPage())
            fail();
        m_begun = true;
        const double x = double(m_device.logicalDpiX()) / PaperUnits::PerInch;
        const double y = double(m_device.logicalDpiY()) / PaperUnits::PerInch;
        m_painter.setWorldTransform(QTransform::fromScale(x, y));
        return m_painter;
    }

    /** The last page goes out only now. */
    void end() { m_painter.end(); }

private:
    [[noreturn]] static void fail() { throw Error(tr("The pages cannot be written.")); }

    QPagedPaintDevice &m_device;
    QPainter m_painter;
    bool m_begun = false;
};

SheetWriter::SheetWriter(const Sheet &sheet, IProgressAbortListener &progress)
    : m_sheet(sheet), m_progress(progress)
{
}

bool SheetWriter::write(QPagedPaintDevice &device, const std::function<void()> &check)
{
    const SheetDesigns &designs = m_sheet.designs();
    DesignQueue queue(designs.mid(0, designs.size()), m_sheet.wish());
    Pages pages(device);
    m_progress.setSteps(designs.size());
    for (int i = 0; i < m_sheet.sections().size(); ++i) {
        const Sheet::Section section = m_sheet.sections().at(i);
        QVector<DrawnDesign> drawn;
        for (int design = section.first; design < section.end; ++design) {
            m_progress.proceed(designs.at(design).fileName());
            auto taken = waitResponsively(m_progress,
                                          [&queue](auto patience) { return queue.take(patience); });
            if (!taken || m_progress.abortState() != 0)
                return false;
            drawn.append(*taken);
        }
        const int count = m_sheet.pageCount(i, drawn);
        for (int page = 0; page < count; ++page) {
            m_sheet.paint(pages.next(), i, page, drawn);
            ++m_pageCount;
            if (check)
                check();
        }
    }
    pages.end();
    if (check)
        check();
    return true;
}
