#include "preview/sheets/WorkSheet.h"

#include "catalogue/records/DesignTexts.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "embroidery/HoopSizes.h"
#include "preview/sheets/PageText.h"
#include "preview/sheets/PaperUnits.h"
#include "preview/sheets/ThreadList.h"
#include "preview/sheets/TrueSizePicture.h"

#include <algorithm>
#include <QPainter>

namespace {

using PaperUnits::Millimetre;

constexpr double TitlePoints = 17.0;
constexpr double CaptionPoints = 8.0;
constexpr double TextPoints = 9.5;
constexpr double HeadingPoints = 10.5;
constexpr double FooterPoints = 7.5;
constexpr double FooterHeight = 7 * Millimetre;
constexpr double Gap = 6 * Millimetre;
constexpr double WritingGap = 8 * Millimetre;
constexpr double LeastRoomToWrite = 30 * Millimetre;
constexpr double FrameWidth = 0.15 * Millimetre;
constexpr double RulerLine = 0.25 * Millimetre;
// Of the page's width and height.
constexpr double PictureShare = 0.6;
constexpr double PictureHeightShare = 0.42;
constexpr int MostTitleLines = 3;
constexpr int MostTagLines = 12;
constexpr int MostNoteLines = 2000;

struct Fact
{
    QString caption;
    QString value;
};

} // namespace

WorkSheet::WorkSheet(const SheetDesigns &designs, const SheetOptions &options, const QSizeF &area)
    : Sheet(designs, options, area)
{
    for (int i = 0; i < m_designs.size(); ++i)
        m_sections.append({i, i + 1});
}

double WorkSheet::footerHeight() const
{
    return m_options.pageNumbers ? FooterHeight : 0;
}

DrawingWish WorkSheet::wish() const
{
    const double side =
        std::max(m_area.width() * PictureShare, m_area.height() * PictureHeightShare);
    return {pixelsOf(side), true};
}

int WorkSheet::pageCount(int section, const QVector<DrawnDesign> &drawn) const
{
    return flow(m_designs.at(section), drawn.value(0)).pageCount();
}

void WorkSheet::paint(QPainter &painter, int section, int page,
                      const QVector<DrawnDesign> &drawn) const
{
    const SheetDesign &design = m_designs.at(section);
    const PageFlow pages = flow(design, drawn.value(0));
    pages.paint(painter, page);
    if (!m_options.pageNumbers)
        return;
    const QFont font = PageText::font(FooterPoints);
    const QRectF footer(0, m_area.height() - FooterHeight / 2, m_area.width(), FooterHeight / 2);
    const QString number =
        tr("Page %1 of %2")
            .arg(DesignTexts::number(page + 1), DesignTexts::number(pages.pageCount()));
    PageText::drawLine(painter, font, footer, number, Qt::AlignRight, PageText::Faint);
    PageText::drawLine(painter, font,
                       footer.adjusted(0, 0, -PageText::width(font, number) - Gap, 0),
                       design.fileName(), Qt::AlignLeft, PageText::Faint, Qt::ElideMiddle);
}

PageFlow WorkSheet::flow(const SheetDesign &design, const DrawnDesign &drawn) const
{
    PageFlow flow(m_area - QSizeF(0, footerHeight()));
    addHead(flow, design);
    addPicture(flow, design, drawn);
    if (drawn.order)
        ThreadList(*drawn.order, m_options.imperial).addTo(flow);
    addNotes(flow, design);
    addRoomToWrite(flow);
    if (drawn.order && m_options.trueSize)
        addTrueSize(flow, drawn);
    return flow;
}

void WorkSheet::addHead(PageFlow &flow, const SheetDesign &design) const
{
    const QFont font = PageText::font(TitlePoints, PageText::Bold);
    const QStringList lines =
        PageText::wrapped(font, design.fileName(), m_area.width(), MostTitleLines);
    flow.add(lines.size() * PageText::lineHeight(font),
             [font, lines](QPainter &painter, const QRectF &area) {
                 PageText::drawLines(painter, font, area, lines);
             });
    const QFont folderFont = PageText::font(CaptionPoints);
    flow.add(PageText::lineHeight(folderFont),
             [folderFont, folder = design.folder()](QPainter &painter, const QRectF &area) {
                 PageText::drawLine(painter, folderFont, area, folder, Qt::AlignLeft,
                                    PageText::Faint, Qt::ElideLeft);
             });
}

QSizeF WorkSheet::pictureSize(const DrawnDesign &drawn) const
{
    const QSizeF room(m_area.width() * PictureShare, m_area.height() * PictureHeightShare);
    if (drawn.picture.isNull())
        return {room.width(), room.width() / 2};
    return QSizeF(drawn.picture.size()).scaled(room, Qt::KeepAspectRatio);
}

void WorkSheet::addPicture(PageFlow &flow, const SheetDesign &design,
                           const DrawnDesign &drawn) const
{
    const QSizeF size = pictureSize(drawn);
    // The facts are always there in full.
    const double least = m_area.height() * PictureHeightShare * 0.7;
    flow.add(
        std::max(size.height(), least),
        [this, size, design, drawn](QPainter &painter, const QRectF &area) {
            const double column = area.width() * PictureShare;
            QRectF picture(area.topLeft(), size);
            const QRectF place(area.topLeft(), QSizeF(column, area.height()));
            picture.moveCenter(place.center());
            const QFont font = PageText::font(TextPoints);
            if (drawn.picture.isNull())
                PageText::drawLines(painter, font, place,
                                    PageText::wrapped(font, drawn.error, column, MostTagLines),
                                    Qt::AlignLeft, PageText::Faint);
            else
                painter.drawImage(picture, drawn.picture);
            paintFacts(painter, area.adjusted(column + Gap, 0, 0, 0), design, drawn);
        },
        Gap);
}

void WorkSheet::paintFacts(QPainter &painter, const QRectF &area, const SheetDesign &design,
                           const DrawnDesign &drawn) const
{
    QVector<Fact> facts{
        {tr("Design size"), LocaleAwareFunctions::toText(drawn.size, m_options.imperial)}};
    const auto hoop = Embroidery::HoopSizes::smallestAround(drawn.size, m_options.imperial);
    if (drawn.size.isValid())
        facts.append({tr("Hoop"), hoop ? LocaleAwareFunctions::toText(*hoop, m_options.imperial)
                                       : tr("no hoop fits")});
    if (drawn.stitches > 0)
        facts.append({tr("Number of stitches"), DesignTexts::number(drawn.stitches)});
    if (drawn.colors > 0)
        facts.append({tr("Number of colors"), DesignTexts::number(drawn.colors)});
    if (drawn.order)
        facts.append({tr("Thread"),
                      DesignTexts::threadLength(drawn.order->threadLength(), m_options.imperial)});
    facts.append({tr("Tags"), design.tags.join(QStringLiteral(", "))});
    const QFont captionFont = PageText::font(CaptionPoints);
    const QFont font = PageText::font(TextPoints, PageText::Bold);
    QRectF rest = area;
    for (const Fact &fact : qAsConst(facts)) {
        const int room =
            int((rest.height() - PageText::lineHeight(captionFont)) / PageText::lineHeight(font));
        if (fact.value.isEmpty() || room < 1)
            continue;
        PageText::drawLines(painter, captionFont, rest, {fact.caption}, Qt::AlignLeft,
                            PageText::Faint);
        rest.setTop(rest.top() + PageText::lineHeight(captionFont));
        const QStringList lines =
            PageText::wrapped(font, fact.value, rest.width(), std::min(room, MostTagLines));
        PageText::drawLines(painter, font, rest, lines);
        rest.setTop(rest.top() + lines.size() * PageText::lineHeight(font) + Millimetre);
    }
}

void WorkSheet::addNotes(PageFlow &flow, const SheetDesign &design) const
{
    const QFont font = PageText::font(TextPoints);
    const QStringList lines = PageText::wrapped(font, design.notes, m_area.width(), MostNoteLines);
    if (lines.isEmpty())
        return;
    const QFont headingFont = PageText::font(HeadingPoints, PageText::Bold);
    const double height = PageText::lineHeight(font);
    flow.need(Gap + PageText::lineHeight(headingFont) + height);
    flow.add(
        PageText::lineHeight(headingFont),
        [headingFont](QPainter &painter, const QRectF &area) {
            PageText::drawLines(painter, headingFont, area, {tr("Notes")});
        },
        Gap);
    for (const QString &line : lines)
        flow.add(height, [font, line](QPainter &painter, const QRectF &area) {
            PageText::drawLines(painter, font, area, {line});
        });
}

void WorkSheet::addRoomToWrite(PageFlow &flow) const
{
    flow.addRest(
        LeastRoomToWrite,
        [](QPainter &painter, const QRectF &area) {
            PageText::drawLine(painter, PageText::font(CaptionPoints),
                               QRectF(area.topLeft(), QSizeF(area.width(), Gap)),
                               tr("Room to write"), Qt::AlignLeft, PageText::Faint);
            painter.setPen(QPen(QColor(PageText::Line), FrameWidth));
            const int lines = int((area.height() - Gap) / WritingGap);
            for (int i = 1; i <= lines; ++i) {
                const double y = area.top() + Gap + i * WritingGap;
                painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
            }
        },
        Gap);
}

void WorkSheet::addTrueSize(PageFlow &flow, const DrawnDesign &drawn) const
{
    flow.breakPage();
    const QFont font = PageText::font(TextPoints);
    const double line = PageText::lineHeight(font);
    const double head = 2 * line + Gap;
    const QSizeF room = m_area - QSizeF(0, footerHeight() + head);
    const TrueSizePicture picture(drawn.order, room, m_options.imperial);
    flow.addRest(head, [=](QPainter &painter, const QRectF &area) {
        const QRectF caption(area.topLeft(), QSizeF(area.width(), line));
        PageText::drawLine(painter, font, caption, picture.caption());
        if (picture.placement().scale >= 1.0)
            paintRuler(painter, caption.translated(0, line + Millimetre));
        picture.paint(painter, area.adjusted(0, head, 0, 0));
    });
}

/** Tells whether the printer has kept the size. */
void WorkSheet::paintRuler(QPainter &painter, const QRectF &area) const
{
    const double length = m_options.imperial ? 2 * PaperUnits::PerInch : 50 * Millimetre;
    const QLineF ruler(area.left(), area.center().y(), area.left() + length, area.center().y());
    const QPointF tick(0, Millimetre);
    painter.setPen(QPen(Qt::black, RulerLine));
    painter.drawLine(ruler);
    painter.drawLine(ruler.p1() - tick, ruler.p1() + tick);
    painter.drawLine(ruler.p2() - tick, ruler.p2() + tick);
    PageText::drawLine(painter, PageText::font(CaptionPoints),
                       area.adjusted(length + 2 * Millimetre, 0, 0, 0),
                       m_options.imperial ? tr("2 inches, if the printer keeps the size")
                                          : tr("50 mm, if the printer keeps the size"),
                       Qt::AlignLeft, PageText::Faint);
}
