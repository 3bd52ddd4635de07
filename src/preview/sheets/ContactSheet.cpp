#include "preview/sheets/ContactSheet.h"

#include "catalogue/records/DesignTexts.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "preview/sheets/PageText.h"
#include "preview/sheets/PaperUnits.h"

#include <algorithm>
#include <QPainter>

namespace {

using PaperUnits::Millimetre;

constexpr double NamePoints = 8.0;
constexpr double FactPoints = 7.0;
constexpr double TitlePoints = 15.0;
constexpr double HeadingPoints = 9.5;
constexpr double FooterPoints = 7.5;
constexpr double TitleHeight = 12 * Millimetre;
constexpr double HeadingHeight = 8 * Millimetre;
constexpr double FooterHeight = 7 * Millimetre;
constexpr double FactsGap = 1 * Millimetre;
constexpr double FrameWidth = 0.15 * Millimetre;
constexpr double FrameCorner = 1.2 * Millimetre;
// Of the frame's side, on each of its sides.
constexpr double PictureMargin = 0.05;

constexpr QChar Star(0x2605);

struct FactRow
{
    SheetOptions::Fact fact;
    int lines;
};
/** In the order in which they stand. */
constexpr FactRow FactRows[] = {
    {SheetOptions::Name, 2},   {SheetOptions::Size, 1}, {SheetOptions::Stitches, 1},
    {SheetOptions::Colors, 1}, {SheetOptions::Tags, 2}, {SheetOptions::Notes, 3},
};

} // namespace

ContactSheet::ContactSheet(const SheetDesigns &designs, const SheetOptions &options,
                           const QSizeF &area)
    : Sheet(designs, options, area), m_nameFont(PageText::font(NamePoints, PageText::Bold)),
      m_factFont(PageText::font(FactPoints)), m_layout(measures(), group())
{
    for (const ContactSheetLayout::Page &page : m_layout.pages())
        m_sections.append({page.first, page.end});
}

QVector<int> ContactSheet::group()
{
    if (!m_options.folderHeadings)
        return {int(m_designs.size())};
    return m_designs.groupByFolder();
}

ContactSheetLayout::Measures ContactSheet::measures() const
{
    return {m_area,
            qBound(1, m_options.columns, SheetOptions::MostColumns),
            factsHeight(),
            m_options.title.isEmpty() ? 0 : TitleHeight,
            m_options.folderHeadings ? HeadingHeight : 0,
            m_options.pageNumbers ? FooterHeight : 0};
}

double ContactSheet::factsHeight() const
{
    double height = 0;
    for (const FactRow &row : FactRows) {
        if (m_options.facts & row.fact)
            height += row.lines * PageText::lineHeight(row.fact == SheetOptions::Name ? m_nameFont
                                                                                      : m_factFont);
    }
    return height > 0 ? height + FactsGap : 0;
}

DrawingWish ContactSheet::wish() const
{
    return {pixelsOf(m_layout.pictureSide()), false};
}

int ContactSheet::pageCount(int, const QVector<DrawnDesign> &) const
{
    return 1;
}

void ContactSheet::paint(QPainter &painter, int section, int,
                         const QVector<DrawnDesign> &drawn) const
{
    const ContactSheetLayout::Page &page = m_layout.pages().at(section);
    if (section == 0 && !m_options.title.isEmpty())
        PageText::drawLine(painter, PageText::font(TitlePoints, PageText::Bold),
                           QRectF(0, 0, m_area.width(), TitleHeight - 3 * Millimetre),
                           m_options.title);
    for (const ContactSheetLayout::Heading &heading : page.headings) {
        const QRectF area = heading.area.adjusted(0, 0, 0, -2 * Millimetre);
        PageText::drawLine(painter, PageText::font(HeadingPoints, PageText::Bold), area,
                           m_designs.folderAt(heading.design), Qt::AlignLeft, 0xFF000000,
                           Qt::ElideLeft);
        painter.setPen(QPen(QColor(PageText::Line), FrameWidth));
        painter.drawLine(area.bottomLeft(), area.bottomRight());
    }
    for (const ContactSheetLayout::Cell &cell : page.cells)
        paintCell(painter, cell.area, m_designs.at(cell.design),
                  drawn.value(cell.design - page.first));
    if (m_options.pageNumbers)
        PageText::drawLine(
            painter, PageText::font(FooterPoints),
            QRectF(0, m_area.height() - FooterHeight / 2, m_area.width(), FooterHeight / 2),
            tr("Page %1 of %2")
                .arg(DesignTexts::number(section + 1), DesignTexts::number(m_sections.size())),
            Qt::AlignRight, PageText::Faint);
}

void ContactSheet::paintCell(QPainter &painter, const QRectF &area, const SheetDesign &design,
                             const DrawnDesign &drawn) const
{
    const double side = m_layout.pictureSide();
    const QRectF frame(area.topLeft(), QSizeF(area.width(), side));
    paintPicture(painter, frame, drawn);
    paintFacts(painter, area.adjusted(0, side + FactsGap, 0, 0), design, drawn);
}

void ContactSheet::paintPicture(QPainter &painter, const QRectF &frame,
                                const DrawnDesign &drawn) const
{
    painter.setPen(QPen(QColor(PageText::Line), FrameWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame, FrameCorner, FrameCorner);
    const double margin = m_layout.pictureSide() * PictureMargin;
    const QRectF inner = frame.adjusted(margin, margin, -margin, -margin);
    if (!drawn.picture.isNull()) {
        QSizeF size = drawn.picture.size();
        size.scale(inner.size(), Qt::KeepAspectRatio);
        QRectF target(QPointF(), size);
        target.moveCenter(inner.center());
        painter.drawImage(target, drawn.picture);
        return;
    }
    const int most = std::max(1, int(inner.height() / PageText::lineHeight(m_factFont)));
    const QStringList lines = PageText::wrapped(m_factFont, drawn.error, inner.width(), most);
    const double height = lines.size() * PageText::lineHeight(m_factFont);
    PageText::drawLines(painter, m_factFont,
                        inner.adjusted(0, (inner.height() - height) / 2.0, 0, 0), lines,
                        Qt::AlignHCenter, PageText::Faint);
}

void ContactSheet::paintFacts(QPainter &painter, const QRectF &area, const SheetDesign &design,
                              const DrawnDesign &drawn) const
{
    QRectF row = area;
    for (const FactRow &factRow : FactRows) {
        if (!(m_options.facts & factRow.fact))
            continue;
        const bool isName = factRow.fact == SheetOptions::Name;
        const QFont &font = isName ? m_nameFont : m_factFont;
        const QStringList lines =
            PageText::wrapped(font, text(factRow.fact, design, drawn), area.width(), factRow.lines);
        PageText::drawLines(painter, font, row, lines, Qt::AlignLeft,
                            isName ? 0xFF000000 : PageText::Faint);
        // What is empty leaves no hole.
        row.setTop(row.top() + lines.size() * PageText::lineHeight(font));
    }
}

QString ContactSheet::text(SheetOptions::Fact fact, const SheetDesign &design,
                           const DrawnDesign &drawn) const
{
    switch (fact) {
    case SheetOptions::Name:
        return design.isFavorite ? QString(Star) + QLatin1Char(' ') + design.fileName()
                                 : design.fileName();
    case SheetOptions::Size:
        return LocaleAwareFunctions::toText(drawn.size, m_options.imperial);
    case SheetOptions::Stitches:
        return drawn.stitches > 0 ? tr("%1 stitches", nullptr, drawn.stitches)
                                        .arg(DesignTexts::number(drawn.stitches))
                                  : QString();
    case SheetOptions::Colors:
        return drawn.colors > 0
                   ? tr("%1 colors", nullptr, drawn.colors).arg(DesignTexts::number(drawn.colors))
                   : QString();
    case SheetOptions::Tags:
        return design.tags.join(QStringLiteral(", "));
    case SheetOptions::Notes:
        return design.notes;
    default:
        return {};
    }
}
