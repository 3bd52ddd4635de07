#pragma once

#include <QPointF>
#include <QVector>

namespace Embroidery {

class EmbPattern;

/** How far two designs have the same stitches. */
enum class StitchLikeness {
    Different,
    /** No stitch differs by more than the rounding of two formats allows. */
    Nearly,
    /** Every stitch is the same, wherever in the hoop the design lies. */
    Same
};

/**
 * The way of the needle through the fabric, from the first stitch to the last, in tenths of a
 * millimetre. Formats tell the same way in different words: as one long stitch or several
 * short ones, with jumps and trims between two shapes or without, from a corner of the hoop
 * or from its middle. Here all these are one.
 */
class StitchPath
{
public:
    /** What rounding may do to a coordinate: half a unit for each format and for the origin. */
    static constexpr double Tolerance = 2;

    /** Keeps nothing of @p pattern. */
    explicit StitchPath(const EmbPattern &pattern);

    bool isEmpty() const { return m_points.isEmpty(); }

    /** Its bounds begin at (0, 0). Points on the way of a straight line may be left out. */
    const QVector<QPointF> &points() const { return m_points; }

    /** How often the thread is changed on the way. */
    int colorChanges() const { return m_colorChanges; }

    /** Takes time in proportion to the points. */
    StitchLikeness compare(const StitchPath &other) const;

private:
    void addRun(const EmbPattern &pattern, int from, int to, const QPointF &start);
    void moveToOrigin();

    QVector<QPointF> m_points;
    int m_colorChanges = 0;
};

} // namespace Embroidery
