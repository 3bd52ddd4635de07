#include "embroidery/StitchFingerprint.h"

#include "embroidery/StitchPath.h"

#include <algorithm>
#include <cmath>

namespace Embroidery {

namespace {

/** Rounding moves every point by itself: the shorter the stitches, the more of their length. */
constexpr double LengthTolerance = 0.1;
/** Rounding comes to next to nothing over all of a design; the origin is rounded only once. */
constexpr double CentreTolerance = 3 * StitchPath::Tolerance;

bool areNear(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}

} // namespace

StitchFingerprint::StitchFingerprint(const StitchPath &path)
{
    const QVector<QPointF> &points = path.points();
    for (int i = 0; i < points.size(); ++i) {
        m_width = std::max(m_width, points.at(i).x());
        m_height = std::max(m_height, points.at(i).y());
        if (i == 0)
            continue;
        const QPointF way = points.at(i) - points.at(i - 1);
        const double length = std::hypot(way.x(), way.y());
        m_length += length;
        m_centre += length * (points.at(i) + points.at(i - 1)) / 2;
    }
    if (m_length > 0)
        m_centre /= m_length;
}

double StitchFingerprint::widthTolerance()
{
    return StitchPath::Tolerance;
}

bool StitchFingerprint::resembles(const StitchFingerprint &other) const
{
    return !isEmpty() && !other.isEmpty() && areNear(m_width, other.m_width, widthTolerance()) &&
           areNear(m_height, other.m_height, StitchPath::Tolerance) &&
           areNear(m_length, other.m_length,
                   LengthTolerance * std::max(m_length, other.m_length)) &&
           areNear(m_centre.x(), other.m_centre.x(), CentreTolerance) &&
           areNear(m_centre.y(), other.m_centre.y(), CentreTolerance);
}

} // namespace Embroidery
