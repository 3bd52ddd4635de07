#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

/**
 * Where the cards of a sheet stand: equally large, numbered from 0 in the order of
 * reading, in rows of equal length but for the last one. Being equal they need no places
 * of their own, so that a sheet of any length costs the same. In scene units.
 */
class SheetLayout
{
public:
    /** Which rows and columns an area touches; none when the last lies before the first. */
    struct Cells
    {
        int firstRow = 0;
        int lastRow = -1;
        int firstColumn = 0;
        int lastColumn = -1;
    };

    SheetLayout() = default;

    /**
     * @param width of the sheet, which cards that are wider than it exceed
     * @param scale pixels per scene unit: the gaps have their size in pixels
     */
    SheetLayout(int count, int width, const QSizeF &card, double scale);

    int count() const { return m_count; }
    /** How many cards a full row has, at least 1. */
    int columns() const { return m_columns; }
    /** How far the tops of two rows are apart; 0 without cards. */
    double rowHeight() const { return m_count > 0 ? m_step.height() : 0.0; }
    /** All cards with the margin around them. */
    QRectF sheet() const;
    /** For an index of 0 to count() - 1. */
    QRectF rectOf(int index) const;

    /** The first card that reaches below @p y; count() where there is none. */
    int firstIndexBelow(double y) const;
    /** The card at a point; -1 where there is none. */
    int indexAt(const QPointF &pos) const;
    /** Those that an area touches, and those beyond the last card as well. */
    Cells cellsIn(const QRectF &area) const;

private:
    int m_count = 0;
    int m_columns = 1;
    int m_margin = 0;
    QPointF m_origin;
    QSizeF m_card;
    QSizeF m_step; ///< from one card to the next
};
