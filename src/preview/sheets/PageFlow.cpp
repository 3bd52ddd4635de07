#include "preview/sheets/PageFlow.h"

#include <QPainter>

PageFlow::PageFlow(const QSizeF &area) : m_area(area), m_pages(1) {}

void PageFlow::add(double height, const Paint &paint, double above)
{
    need(above + height);
    if (!m_pages.last().isEmpty())
        m_top += above;
    place(height, paint);
}

void PageFlow::addRest(double least, const Paint &paint, double above)
{
    need(above + least);
    if (!m_pages.last().isEmpty())
        m_top += above;
    place(m_area.height() - m_top, paint);
}

void PageFlow::breakPage()
{
    if (!m_pages.last().isEmpty())
        beginPage();
}

void PageFlow::need(double height)
{
    if (m_top + height > m_area.height())
        breakPage();
}

void PageFlow::repeat(double height, const Paint &paint)
{
    m_repeatedHeight = height;
    m_repeated = paint;
}

void PageFlow::beginPage()
{
    m_pages.append(QVector<Piece>());
    m_top = 0;
    if (m_repeated)
        place(m_repeatedHeight, m_repeated);
}

void PageFlow::place(double height, const Paint &paint)
{
    m_pages.last().append({QRectF(0, m_top, m_area.width(), height), paint});
    m_top += height;
}

void PageFlow::paint(QPainter &painter, int page) const
{
    for (const Piece &piece : m_pages.value(page)) {
        painter.save();
        piece.paint(painter, piece.area);
        painter.restore();
    }
}
