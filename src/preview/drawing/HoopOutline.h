#pragma once

#include <QRectF>
#include <QSizeF>

class QColor;
class QPainter;

/** The inner edge of a hoop as it is drawn around a design. */
namespace HoopOutline {

/** The hoop of @p millimetres, centred on @p design; both rectangles in tenths of a millimetre. */
QRectF around(const QRectF &design, const QSizeF &millimetres);

/**
 * Draws the hoop with a mark in the middle of each side, in lines @p lineWidth wide;
 * both are in the coordinates of the painter.
 */
void paint(QPainter &painter, const QRectF &hoop, const QColor &color, double lineWidth);

} // namespace HoopOutline
