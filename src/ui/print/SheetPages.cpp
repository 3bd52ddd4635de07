#include "ui/print/SheetPages.h"

#include "catalogue/records/DesignTexts.h"
#include "preview/sheets/PaperUnits.h"

#include <QPainter>

namespace {

constexpr int TakingInterval = 30; // milliseconds

} // namespace

SheetPages::SheetPages(QObject *parent) : QObject(parent)
{
    m_timer.setInterval(TakingInterval);
    connect(&m_timer, &QTimer::timeout, this, &SheetPages::takeDesigns);
}

void SheetPages::setSheet(const SheetDesigns &designs, const SheetOptions &options)
{
    m_options = options;
    const QSizeF area = options.pageLayout().paintRect(QPageLayout::Millimeter).size();
    m_sheet = Sheet::make(designs, options, area * PaperUnits::Millimetre);
    showSection(0, false);
}

void SheetPages::showSection(int section, bool lastPage)
{
    m_section = section;
    m_page = 0;
    m_wantsLastPage = lastPage;
    m_drawn.clear();
    m_queue.emplace(m_sheet->designsOf(m_sheet->sections().at(section)), m_sheet->wish());
    m_timer.start();
    emit changed();
}

void SheetPages::takeDesigns()
{
    const int before = m_drawn.size();
    while (!isComplete()) {
        std::optional<DrawnDesign> drawn = m_queue->take(std::chrono::milliseconds(0));
        if (!drawn)
            break;
        m_drawn.append(*drawn);
    }
    if (isComplete()) {
        m_timer.stop();
        if (m_wantsLastPage)
            m_page = pageCount() - 1;
        m_wantsLastPage = false;
    }
    if (m_drawn.size() != before)
        emit changed();
}

bool SheetPages::isComplete() const
{
    const Sheet::Section section = m_sheet->sections().at(m_section);
    return m_drawn.size() >= section.end - section.first;
}

int SheetPages::pageCount() const
{
    return m_sheet->pageCount(m_section, m_drawn);
}

bool SheetPages::hasPrevious() const
{
    return m_section > 0 || m_page > 0;
}

bool SheetPages::hasNext() const
{
    return m_section + 1 < m_sheet->sections().size() || m_page + 1 < pageCount();
}

void SheetPages::showPrevious()
{
    if (m_page > 0) {
        --m_page;
        emit changed();
    } else if (m_section > 0) {
        showSection(m_section - 1, true);
    }
}

void SheetPages::showNext()
{
    if (m_page + 1 < pageCount()) {
        ++m_page;
        emit changed();
    } else if (m_section + 1 < m_sheet->sections().size()) {
        showSection(m_section + 1, false);
    }
}

void SheetPages::showFirst()
{
    showSection(0, false);
}

void SheetPages::showLast()
{
    showSection(m_sheet->sections().size() - 1, true);
}

QString SheetPages::place() const
{
    const QString section = DesignTexts::number(m_section + 1);
    const QString sections = DesignTexts::number(m_sheet->sections().size());
    if (m_options.kind == SheetOptions::Contact)
        return tr("Page %1 of %2").arg(section, sections);
    return tr("Design %1 of %2, page %3 of %4")
        .arg(section, sections, DesignTexts::number(m_page + 1), DesignTexts::number(pageCount()));
}

QSizeF SheetPages::paperSize() const
{
    return m_options.pageLayout().fullRect(QPageLayout::Millimeter).size() * PaperUnits::Millimetre;
}

QImage SheetPages::image(int width) const
{
    const double scale = width / paperSize().width();
    QImage image(width, qMax(1, qRound(paperSize().height() * scale)), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                           QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    painter.translate(m_options.pageLayout().paintRect(QPageLayout::Millimeter).topLeft() *
                      PaperUnits::Millimetre);
    m_sheet->paint(painter, m_section, m_page, m_drawn);
    return image;
}
