#include "preview/sheets/ContactSheetLayout.h"

#include <algorithm>

ContactSheetLayout::ContactSheetLayout(const Measures &measures, const QVector<int> &groups)
    : m_measures(measures), m_bottom(measures.area.height() - measures.footerHeight)
{
    const double gaps = Gap * (measures.columns - 1);
    m_cellWidth = std::max(1.0, (measures.area.width() - gaps) / measures.columns);
    // One row always fits, also where a column is wider than the page is high.
    const double room =
        m_bottom - measures.titleHeight - measures.headingHeight - measures.factsHeight;
    m_side = std::max(1.0, std::min(m_cellWidth, room));
    m_cellHeight = m_side + measures.factsHeight;
    beginPage();
    m_top = measures.titleHeight;
    for (const int size : groups)
        addGroup(size);
}

void ContactSheetLayout::beginPage()
{
    m_pages.append({m_design, m_design, {}, {}});
    m_top = 0;
}

void ContactSheetLayout::addHeading()
{
    if (m_measures.headingHeight <= 0)
        return;
    m_pages.last().headings.append(
        {m_design, QRectF(0, m_top, m_measures.area.width(), m_measures.headingHeight)});
    m_top += m_measures.headingHeight;
}

void ContactSheetLayout::addGroup(int size)
{
    // A heading stays with the first row below it, and comes again with the next page.
    bool needsHeading = true;
    for (int row = 0; row < size; row += m_measures.columns) {
        const double heading = needsHeading ? m_measures.headingHeight : 0;
        // What was added up may be off by less than anyone sees.
        if (!m_pages.last().cells.isEmpty() && m_top + heading + m_cellHeight > m_bottom + 1) {
            beginPage();
            needsHeading = true;
        }
        if (needsHeading)
            addHeading();
        needsHeading = false;
        Page &page = m_pages.last();
        for (int column = 0; column < std::min(m_measures.columns, size - row); ++column) {
            const QPointF corner(column * (m_cellWidth + Gap), m_top);
            page.cells.append({m_design++, QRectF(corner, QSizeF(m_cellWidth, m_cellHeight))});
        }
        page.end = m_design;
        m_top += m_cellHeight + Gap;
    }
}
