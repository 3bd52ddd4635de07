#pragma once

#include "Curve.h"
#include "embroidery/EmbPattern.h"
#include <QSharedPointer>
#include <QString>
#include <QVector>

/**
 * Sews one sample: turns shapes into the stitches that a digitiser would lay.
 * Coordinates are tenths of a millimetre around the middle of the design, y
 * down; they are rounded to whole tenths, which every format can hold. Shapes
 * sewn later lie on top. Call thread() before the first shape.
 */
class Sewing
{
public:
    Sewing();

    /** Changes to a thread of this colour; name and number stand in the thread list. */
    void thread(unsigned int rgb, const QString &name, const QString &number);

    /** Fills what lies inside an odd number of the outlines with rows at @p degrees, whose
        needle points are offset from row to row so that no furrow shows. */
    void fill(const QVector<Curve> &outlines, double degrees);
    void fill(const Curve &outline, double degrees) { fill(QVector<Curve>{outline}, degrees); }

    /** A running stitch along the curve. */
    void run(const Curve &curve, double stitchLength = 24);

    /** A satin column between two rails that lead the same way, over a running underlay. */
    void satin(const Curve &left, const Curve &right);

    /** A satin column of even width along the curve; corners are sewn as mitred joints. */
    void stroke(const Curve &curve, double width);

    /** A petal sewn across its length, from its foot in the direction of @p degrees. */
    void petal(const QPointF &foot, double degrees, double length, double width);

    /** A leaf of two slanted halves that meet at the midrib. */
    void leaf(const QPointF &foot, double degrees, double length, double width);

    /** A round spot. */
    void dot(const QPointF &center, double radius);

    /** Stitches, moves and the like so far. */
    int stitchCount() const { return m_pattern->getStitchCount(); }

    /** The finished design. The sewing must not be used afterwards. */
    QSharedPointer<Embroidery::EmbPattern> finish(const QString &name, const QString &category);

private:
    void goTo(const QPointF &point);
    void sew(const QPointF &point);
    void sewAcross(const QPointF &from, const QPointF &to, int row);

    QSharedPointer<Embroidery::EmbPattern> m_pattern;
    QPointF m_position;
    bool m_mustMove = true;
};
