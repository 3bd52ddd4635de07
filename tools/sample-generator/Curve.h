#pragma once

#include <QPointF>
#include <QVector>

/* Geometry of the samples. Lengths are in tenths of a millimetre, y points down, angles are in
    degrees from the x axis, clockwise as seen. */
/** A polyline; it is closed when its first and last point are the same. */
using Curve = QVector<QPointF>;

namespace Curves {

/** The point at a distance and an angle from @p center. */
QPointF polar(const QPointF &center, double degrees, double radius);

/** An arc of an ellipse from one angle to another, as a fine polyline. */
Curve arc(const QPointF &center, double radiusX, double radiusY, double from, double to);

/** A whole circle; first and last point are the same. */
Curve circle(const QPointF &center, double radius);

/** A smooth line through the points. */
Curve spline(const Curve &points);

/** A smooth closed outline through the points; first and last point are the same. */
Curve closedSpline(const Curve &points);

/** The polygon with its first point repeated at the end. */
Curve closed(const Curve &points);

/** The curve mirrored at the vertical line through @p x. */
Curve mirrored(const Curve &curve, double x = 0);

/** The curve turned about @p center. */
Curve turned(const Curve &curve, double degrees, const QPointF &center = QPointF());

double length(const Curve &curve);

/** @p count + 1 points at equal distances along the curve; @p count is at least 1. */
Curve resampled(const Curve &curve, int count);

/** Points about @p step apart along the curve, both ends kept. */
Curve resampledByStep(const Curve &curve, double step);

/** The curve cut at the points where it turns by more than @p degrees. A closed curve is also
    cut at its seam when that is such a corner. */
QVector<Curve> cutAtCorners(const Curve &curve, double degrees);

} // namespace Curves
