#include "preview/grid/SheetLayout.h"

#include <algorithm>
#include <cmath>
#include <QtMath>

namespace {

constexpr double MarginPixels = 10.0;
constexpr double SpacingPixels = 20.0;

/** Those of @p count stretches, each @p length long and @p step from the last, that [from, to]
 * meets.
 */
std::pair<int, int> touched(double from, double to, double length, double step, int count)
{
    const int first = int(std::ceil(std::clamp((from - length) / step, -1.0, double(count))));
    const int last = int(std::floor(std::clamp(to / step, -1.0, double(count))));
    return {std::max(first, 0), std::min(last, count - 1)};
}

} // namespace

SheetLayout::SheetLayout(int count, int width, const QSizeF &card, double scale)
    : m_count(count), m_margin(int(MarginPixels / scale)), m_card(card)
{
    const int spacing = int(SpacingPixels / scale);
    const int cardWidth = qRound(card.width());
    m_step = QSizeF(cardWidth + spacing, qRound(card.height()) + spacing);
    // A card fits in while another margin behind it does.
    const int room = width - 1 - 2 * m_margin - cardWidth;
    const bool fits = room >= 0;
    const int perRow = fits ? room / (cardWidth + spacing) + 1 : 1;
    m_columns = std::max(std::min(perRow, count), 1);
    // One that doesn't goes below an empty row.
    m_origin = QPointF(m_margin, fits ? m_margin : m_margin + spacing);
}

QRectF SheetLayout::sheet() const
{
    const QRectF cards =
        m_count > 0 ? rectOf(0) | rectOf(m_columns - 1) | rectOf(m_count - 1) : QRectF();
    return cards.adjusted(-m_margin, -m_margin, m_margin, m_margin);
}

QRectF SheetLayout::rectOf(int index) const
{
    const int row = index / m_columns;
    const int column = index % m_columns;
    const QPointF place(column * m_step.width(), row * m_step.height());
    return {m_origin + place, m_card};
}

int SheetLayout::firstIndexBelow(double y) const
{
    if (m_count == 0) {
        return 0;
    }
    const double rowsAbove = std::floor((y - m_origin.y() - m_card.height()) / m_step.height()) + 1;
    const int rows = (m_count + m_columns - 1) / m_columns;
    return std::min(int(std::clamp(rowsAbove, 0.0, double(rows))) * m_columns, m_count);
}

int SheetLayout::indexAt(const QPointF &pos) const
{
    const int first = firstIndexBelow(pos.y());
    const int end = std::min(first + m_columns, m_count);
    for (int i = first; i < end; ++i) {
        if (rectOf(i).contains(pos)) {
            return i;
        }
    }
    return -1;
}

SheetLayout::Cells SheetLayout::cellsIn(const QRectF &area) const
{
    if (m_count == 0) {
        return {};
    }
    const QRectF inside = area.translated(-m_origin);
    const int rows = (m_count + m_columns - 1) / m_columns;
    const auto [firstRow, lastRow] =
        touched(inside.top(), inside.bottom(), m_card.height(), m_step.height(), rows);
    const auto [firstColumn, lastColumn] =
        touched(inside.left(), inside.right(), m_card.width(), m_step.width(), m_columns);
    return {firstRow, lastRow, firstColumn, lastColumn};
}
