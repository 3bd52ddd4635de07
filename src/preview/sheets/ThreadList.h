#pragma once

#include "preview/drawing/SewingOrder.h"

#include <QCoreApplication>
#include <QRectF>
#include <QString>

class PageFlow;
class QPainter;

/** The threads of a design in the order of sewing, as a table with a box to tick off each. */
class ThreadList
{
    Q_DECLARE_TR_FUNCTIONS(ThreadList)

public:
    ThreadList(const SewingOrder &order, bool imperial);

    /** Adds a row for each thread, with the head of the table again on every page. */
    void addTo(PageFlow &flow) const;

private:
    enum Column { Done, Order, Color, Name, Number, Chart, Stitches, Length, ColumnCount };

    static QRectF cell(const QRectF &row, int column);
    static bool isNumeric(int column);
    QString text(const ThreadUse &use, int row, int column) const;
    void paintHead(QPainter &painter, const QRectF &area) const;
    void paintRow(QPainter &painter, const QRectF &area, int row) const;

    const QVector<ThreadUse> m_uses;
    const bool m_imperial;
};
