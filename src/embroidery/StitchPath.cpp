#include "embroidery/StitchPath.h"

#include "embroidery/EmbPattern.h"

#include <algorithm>
#include <cmath>

namespace Embroidery {

namespace {

bool isNear(const QPointF &a, const QPointF &b, double tolerance)
{
    return std::abs(a.x() - b.x()) <= tolerance && std::abs(a.y() - b.y()) <= tolerance;
}

bool isCommand(int data, StitchCommand command)
{
    return (data & 0xFF) == command;
}

/** Whether @p point lies on the straight way between the two others. */
bool isOnTheWay(const QPointF &point, const QPointF &from, const QPointF &to, double tolerance)
{
    const QPointF way = to - from;
    const double squared = QPointF::dotProduct(way, way);
    if (squared == 0)
        return isNear(point, from, tolerance);
    const double part = QPointF::dotProduct(point - from, way) / squared;
    return isNear(point, from + qBound(0.0, part, 1.0) * way, tolerance);
}

/** Goes two ways at once, for as long as they are the same one. */
class Walk
{
public:
    /**
     * @param tolerance of a point against a point
     * @param wayTolerance of a point against the straight way between two others
     */
    Walk(const QVector<QPointF> &a, const QVector<QPointF> &b, double tolerance,
         double wayTolerance)
        : m_a(a), m_b(b), m_tolerance(tolerance), m_wayTolerance(wayTolerance), m_fromA(a.first()),
          m_fromB(b.first())
    {
    }

    bool arrives()
    {
        if (!isNear(m_fromA, m_fromB, m_tolerance))
            return false;
        while (m_nextA < m_a.size() && m_nextB < m_b.size()) {
            if (!step())
                return false;
        }
        // What is left of one of them is a stitch in place.
        return rests(m_a, m_nextA, m_fromB) && rests(m_b, m_nextB, m_fromA);
    }

private:
    bool step()
    {
        const QPointF &a = m_a.at(m_nextA);
        const QPointF &b = m_b.at(m_nextB);
        if (isNear(a, b, m_tolerance)) {
            m_fromA = a;
            m_fromB = b;
            ++m_nextA;
            ++m_nextB;
        } else if (isOnTheWay(a, m_fromB, b, m_wayTolerance)) {
            m_fromA = m_fromB = a;
            ++m_nextA;
        } else if (isOnTheWay(b, m_fromA, a, m_wayTolerance)) {
            m_fromA = m_fromB = b;
            ++m_nextB;
        } else {
            return false;
        }
        return true;
    }

    bool rests(const QVector<QPointF> &points, int next, const QPointF &place) const
    {
        return std::all_of(points.begin() + next, points.end(),
                           [&](const QPointF &point) { return isNear(point, place, m_tolerance); });
    }

    const QVector<QPointF> &m_a;
    const QVector<QPointF> &m_b;
    const double m_tolerance;
    const double m_wayTolerance;
    QPointF m_fromA;
    QPointF m_fromB;
    int m_nextA = 1;
    int m_nextB = 1;
};

/** Whole units are equal or not. */
constexpr double Exactly = 0.5;
/** The points that cut a long stitch into parts are rounded, by some programs downwards. */
constexpr double RoundingOfParts = 1;

} // namespace

StitchPath::StitchPath(const EmbPattern &pattern)
{
    QPointF position(0, 0);
    bool sewn = false;
    bool changed = false;
    for (int i = 0; i < pattern.size();) {
        const int data = pattern.getData(i);
        if (!isCommand(data, StitchCommandStitch)) {
            if (isCommand(data, StitchCommandMove))
                position = QPointF(pattern.getX(i), pattern.getY(i));
            changed |= isColorChange(data);
            ++i;
            continue;
        }
        const int first = i;
        while (i < pattern.size() && isCommand(pattern.getData(i), StitchCommandStitch))
            ++i;
        addRun(pattern, first, i, position);
        position = QPointF(pattern.getX(i - 1), pattern.getY(i - 1));
        // A change before the first stitch or after the last one changes nothing.
        if (sewn && changed)
            ++m_colorChanges;
        sewn |= !m_points.isEmpty();
        changed = false;
    }
    moveToOrigin();
}

/** The stitches of the points from @p from on and before @p to, begun at @p start. */
void StitchPath::addRun(const EmbPattern &pattern, int from, int to, const QPointF &start)
{
    // A stitch in place holds nothing; some programs begin a design with one in the corner.
    bool moves = false;
    for (int i = from; i < to && !moves; ++i)
        moves = QPointF(pattern.getX(i), pattern.getY(i)) != start;
    if (!moves)
        return;
    const auto add = [this](const QPointF &point) {
        if (m_points.isEmpty() || m_points.last() != point)
            m_points.append(point);
    };
    add(start);
    for (int i = from; i < to; ++i)
        add(QPointF(pattern.getX(i), pattern.getY(i)));
}

void StitchPath::moveToOrigin()
{
    if (m_points.isEmpty())
        return;
    QPointF corner = m_points.first();
    for (const QPointF &point : qAsConst(m_points))
        corner = {std::min(corner.x(), point.x()), std::min(corner.y(), point.y())};
    for (QPointF &point : m_points)
        point -= corner;
}

StitchLikeness StitchPath::compare(const StitchPath &other) const
{
    if (isEmpty() || other.isEmpty())
        return StitchLikeness::Different;
    if (m_colorChanges == other.m_colorChanges &&
        Walk(m_points, other.m_points, Exactly, RoundingOfParts).arrives())
        return StitchLikeness::Same;
    return Walk(m_points, other.m_points, Tolerance, Tolerance).arrives()
               ? StitchLikeness::Nearly
               : StitchLikeness::Different;
}

} // namespace Embroidery
