#pragma once

#include <functional>
#include <QRectF>
#include <QSizeF>
#include <QVector>

class QPainter;

/** Pieces one below the other, on as many pages as they need. Hundredths of a millimetre. */
class PageFlow
{
public:
    /** Paints a piece into the rectangle that it was given. */
    using Paint = std::function<void(QPainter &, const QRectF &)>;

    explicit PageFlow(const QSizeF &area);

    /** A piece as wide as the page. @param above room that is left out at the top of a page */
    void add(double height, const Paint &paint, double above = 0);
    /** A piece that takes what is left of the page, on the next one if that is too little. */
    void addRest(double least, const Paint &paint, double above = 0);
    /** Begins a page, unless nothing is on the last one. */
    void breakPage();
    /** Begins a page unless so much is left of the last one. */
    void need(double height);
    /** From now on comes first on each page that is begun; null for nothing. */
    void repeat(double height, const Paint &paint);

    int pageCount() const { return m_pages.size(); }
    void paint(QPainter &painter, int page) const;

private:
    struct Piece
    {
        QRectF area;
        Paint paint;
    };

    void beginPage();
    void place(double height, const Paint &paint);

    QSizeF m_area;
    double m_top = 0;
    double m_repeatedHeight = 0;
    Paint m_repeated;
    QVector<QVector<Piece>> m_pages;
};
