#include "Curve.h"

#include <QLineF>
#include <QPolygonF>
#include <QTransform>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace Curves {

namespace {

constexpr double Pi = 3.14159265358979323846;
constexpr int PointsPerSpan = 16;

QPointF catmullRom(const QPointF &a, const QPointF &b, const QPointF &c, const QPointF &d, double t)
{
    return 0.5 * (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t * t +
                  (3 * b - a - 3 * c + d) * t * t * t);
}

double turn(const QPointF &before, const QPointF &at, const QPointF &after)
{
    const double angle = QLineF(before, at).angleTo(QLineF(at, after));
    return std::min(angle, 360 - angle);
}

} // namespace

QPointF polar(const QPointF &center, double degrees, double radius)
{
    const double angle = degrees * Pi / 180;
    return center + radius * QPointF(std::cos(angle), std::sin(angle));
}

Curve arc(const QPointF &center, double radiusX, double radiusY, double from, double to)
{
    const int count = std::max(8, int(std::abs(to - from) / 5));
    Curve result;
    for (int i = 0; i <= count; ++i) {
        const QPointF unit = polar(QPointF(), from + (to - from) * i / count, 1);
        result << center + QPointF(unit.x() * radiusX, unit.y() * radiusY);
    }
    return result;
}

Curve circle(const QPointF &center, double radius)
{
    return arc(center, radius, radius, 0, 360);
}

Curve spline(const Curve &points)
{
    Curve result;
    const int last = points.size() - 1;
    for (int i = 0; i < last; ++i) {
        for (int k = 0; k < PointsPerSpan; ++k)
            result << catmullRom(points[std::max(0, i - 1)], points[i], points[i + 1],
                                 points[std::min(last, i + 2)], double(k) / PointsPerSpan);
    }
    return result << points.last();
}

Curve closedSpline(const Curve &points)
{
    Curve result;
    const int n = points.size();
    for (int i = 0; i < n; ++i) {
        for (int k = 0; k < PointsPerSpan; ++k)
            result << catmullRom(points[(i + n - 1) % n], points[i], points[(i + 1) % n],
                                 points[(i + 2) % n], double(k) / PointsPerSpan);
    }
    return result << result.first();
}

Curve closed(const Curve &points)
{
    return points + Curve{points.first()};
}

Curve mirrored(const Curve &curve, double x)
{
    return QTransform(-1, 0, 0, 1, 2 * x, 0).map(QPolygonF(curve));
}

Curve turned(const Curve &curve, double degrees, const QPointF &center)
{
    QTransform transform;
    transform.translate(center.x(), center.y());
    transform.rotate(degrees);
    transform.translate(-center.x(), -center.y());
    return transform.map(QPolygonF(curve));
}

double length(const Curve &curve)
{
    double sum = 0;
    for (int i = 1; i < curve.size(); ++i)
        sum += QLineF(curve[i - 1], curve[i]).length();
    return sum;
}

Curve resampled(const Curve &curve, int count)
{
    const double step = length(curve) / count;
    Curve result{curve.first()};
    double walked = 0;
    for (int i = 1; i < curve.size() && result.size() < count; ++i) {
        const QLineF span(curve[i - 1], curve[i]);
        while (result.size() < count && step * result.size() <= walked + span.length())
            result << span.pointAt((step * result.size() - walked) / span.length());
        walked += span.length();
    }
    while (result.size() <= count)
        result << curve.last();
    return result;
}

Curve resampledByStep(const Curve &curve, double step)
{
    return resampled(curve, std::max(1, int(std::lround(length(curve) / step))));
}

QVector<Curve> cutAtCorners(const Curve &curve, double degrees)
{
    QVector<Curve> pieces;
    Curve piece{curve.first()};
    for (int i = 1; i + 1 < curve.size(); ++i) {
        piece << curve[i];
        if (turn(curve[i - 1], curve[i], curve[i + 1]) > degrees) {
            pieces << piece;
            piece = Curve{curve[i]};
        }
    }
    piece << curve.last();
    const bool loop = curve.first() == curve.last() && !pieces.isEmpty();
    if (loop && turn(curve[curve.size() - 2], curve.first(), curve[1]) <= degrees)
        pieces.first() = piece + pieces.first().mid(1);
    else
        pieces << piece;
    return pieces;
}

} // namespace Curves
