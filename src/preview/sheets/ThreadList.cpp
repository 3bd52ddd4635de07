#include "preview/sheets/ThreadList.h"

#include "catalogue/records/DesignTexts.h"
#include "preview/sheets/PageFlow.h"
#include "preview/sheets/PageText.h"
#include "preview/sheets/PaperUnits.h"

#include <numeric>
#include <QPainter>

namespace {

using PaperUnits::Millimetre;

constexpr double HeadPoints = 8.0;
constexpr double RowPoints = 8.5;
constexpr double RowHeight = 5.6 * Millimetre;
constexpr double Above = 5 * Millimetre;
constexpr double LineWidth = 0.15 * Millimetre;
constexpr double CellMargin = 1 * Millimetre;
constexpr double BoxSide = 3 * Millimetre;
constexpr double DiscSide = 3.8 * Millimetre;
// The shares of the columns in the width of the paper.
constexpr int Shares[] = {4, 5, 5, 33, 12, 19, 11, 11};

QRectF centered(const QRectF &area, double side)
{
    QRectF square(0, 0, side, side);
    square.moveCenter(area.center());
    return square;
}

} // namespace

ThreadList::ThreadList(const SewingOrder &order, bool imperial)
    : m_uses(order.threadUses()), m_imperial(imperial)
{
}

void ThreadList::addTo(PageFlow &flow) const
{
    const auto head = [list = *this](QPainter &painter, const QRectF &area) {
        list.paintHead(painter, area);
    };
    flow.need(Above + 2 * RowHeight);
    flow.add(RowHeight, head, Above);
    flow.repeat(RowHeight, head);
    for (int row = 0; row < m_uses.size(); ++row) {
        flow.add(RowHeight, [list = *this, row](QPainter &painter, const QRectF &area) {
            list.paintRow(painter, area, row);
        });
    }
    flow.repeat(0, nullptr);
}

QRectF ThreadList::cell(const QRectF &row, int column)
{
    static_assert(std::size(Shares) == ColumnCount);
    const double all = std::accumulate(std::begin(Shares), std::end(Shares), 0);
    const double before = std::accumulate(Shares, Shares + column, 0);
    const QRectF whole(row.left() + row.width() * before / all, row.top(),
                       row.width() * Shares[column] / all, row.height());
    const bool isFirst = column == Done;
    const bool isLast = column == Length;
    return whole.adjusted(isFirst ? 0 : CellMargin, 0, isLast ? 0 : -CellMargin, 0);
}

bool ThreadList::isNumeric(int column)
{
    return column == Order || column == Stitches || column == Length;
}

QString ThreadList::text(const ThreadUse &use, int row, int column) const
{
    switch (column) {
    case Order:
        return DesignTexts::number(row + 1);
    case Name:
        return use.thread->getDescription().isEmpty() ? use.thread->getHexColor()
                                                      : use.thread->getDescription();
    case Number:
        return use.thread->getCatalogNumber();
    case Chart:
        return use.thread->getChart().isEmpty() ? use.thread->getBrand() : use.thread->getChart();
    case Stitches:
        return DesignTexts::number(use.stitches);
    case Length:
        return DesignTexts::threadLength(use.length, m_imperial);
    default:
        return {};
    }
}

void ThreadList::paintHead(QPainter &painter, const QRectF &area) const
{
    const QString captions[] = {
        {}, {}, {}, tr("Color name"), tr("Number"), tr("Chart"), tr("Stitches"), tr("Length")};
    const QFont font = PageText::font(HeadPoints, PageText::Bold);
    for (int column = 0; column < ColumnCount; ++column)
        PageText::drawLine(painter, font, cell(area, column), captions[column],
                           isNumeric(column) ? Qt::AlignRight : Qt::AlignLeft);
    painter.setPen(QPen(Qt::black, 2 * LineWidth));
    painter.drawLine(area.bottomLeft(), area.bottomRight());
}

void ThreadList::paintRow(QPainter &painter, const QRectF &area, int row) const
{
    const ThreadUse &use = m_uses.at(row);
    const QFont font = PageText::font(RowPoints);
    painter.setPen(QPen(Qt::gray, 2 * LineWidth));
    const QRectF done = cell(area, Done);
    painter.drawRect(QRectF(done.left(), done.center().y() - BoxSide / 2, BoxSide, BoxSide));
    painter.setBrush(QColor(use.thread->getRGB()));
    painter.drawEllipse(centered(cell(area, Color), DiscSide));
    painter.setBrush(Qt::NoBrush);
    for (int column = 0; column < ColumnCount; ++column)
        PageText::drawLine(painter, font, cell(area, column), text(use, row, column),
                           isNumeric(column) ? Qt::AlignRight : Qt::AlignLeft);
    painter.setPen(QPen(QColor(PageText::Line), LineWidth));
    painter.drawLine(area.bottomLeft(), area.bottomRight());
}
