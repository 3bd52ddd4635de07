#pragma once

#include <QRectF>
#include <QSizeF>
#include <QVector>

/** Where the pictures and headings of a contact sheet are, on all of its pages. */
class ContactSheetLayout
{
public:
    /** Hundredths of a millimetre, but for the columns. */
    struct Measures
    {
        QSizeF area;
        int columns;
        /** Of the lines below each picture. */
        double factsHeight;
        /** Of the title on the first page; 0 where there is none. */
        double titleHeight;
        /** Of the name of a folder; 0 where there are none. */
        double headingHeight;
        /** Of the page number; 0 where there is none. */
        double footerHeight;
    };
    struct Cell
    {
        int design;
        /** Picture and facts. */
        QRectF area;
    };
    struct Heading
    {
        /** The first design below it. */
        int design;
        QRectF area;
    };
    /** Shows the designs from `first` to before `end`. */
    struct Page
    {
        int first;
        int end;
        QVector<Cell> cells;
        QVector<Heading> headings;
    };

    /** @param groups how many designs stand below each heading, or all in one */
    ContactSheetLayout(const Measures &measures, const QVector<int> &groups);

    const QVector<Page> &pages() const { return m_pages; }
    /** Of the square that a picture has. */
    double pictureSide() const { return m_side; }

    static constexpr double Gap = 400.0;

private:
    void addGroup(int size);
    void beginPage();
    void addHeading();

    Measures m_measures;
    double m_side;
    double m_cellWidth;
    double m_cellHeight;
    double m_bottom;
    double m_top = 0;
    int m_design = 0;
    QVector<Page> m_pages;
};
