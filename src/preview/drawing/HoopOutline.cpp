#include "preview/drawing/HoopOutline.h"

#include <algorithm>
#include <QLineF>
#include <QPainter>

namespace {

constexpr double UnitsPerMillimetre = 10.0;
// Shares of the shorter side.
constexpr double CornerShare = 0.08;
constexpr double MarkShare = 0.03;

} // namespace

QRectF HoopOutline::around(const QRectF &design, const QSizeF &millimetres)
{
    QRectF hoop(QPointF(), millimetres * UnitsPerMillimetre);
    hoop.moveCenter(design.center());
    return hoop;
}

void HoopOutline::paint(QPainter &painter, const QRectF &hoop, const QColor &color,
                        double lineWidth)
{
    const double side = std::min(hoop.width(), hoop.height());
    const QPointF middle = hoop.center();
    const double mark = side * MarkShare;
    const QLineF marks[] = {
        {hoop.left(), middle.y(), hoop.left() + mark, middle.y()},
        {hoop.right(), middle.y(), hoop.right() - mark, middle.y()},
        {middle.x(), hoop.top(), middle.x(), hoop.top() + mark},
        {middle.x(), hoop.bottom(), middle.x(), hoop.bottom() - mark},
    };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, lineWidth));
    painter.drawRoundedRect(hoop, side * CornerShare, side * CornerShare);
    painter.drawLines(marks, int(std::size(marks)));
    painter.restore();
}
