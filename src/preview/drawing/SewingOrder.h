#pragma once

#include "embroidery/EmbPattern.h"
#include "embroidery/EmbThread.h"
#include <QPointF>
#include <QRectF>
#include <QSharedPointer>
#include <QVector>

/** What is sewn with one thread until the next one is threaded. */
struct ThreadUse
{
    QSharedPointer<Embroidery::EmbThread> thread;
    /** The points of this use are those from here to before `endPoint`. */
    int firstPoint;
    /** Where the next use begins; for the last one the number of points. */
    int endPoint;
    /** How often the needle goes down; jumps, trims and stops are no stitches. */
    int stitches;
    /** Of the thread on the fabric, from one needle point to the next, in tenths of a millimetre.
     */
    double length;
};

/** A row of lines, each of which leads to the next point of the design. */
struct StitchRun
{
    enum Kind { Sewn, Jump };

    Kind kind;
    /** Which of the thread uses lays it, or drags the thread along. */
    int use;
    /** Where the first line begins, in tenths of a millimetre. */
    QPointF start;
    /** The lines lead to the points from here to before `endPoint`. */
    int firstPoint;
    int endPoint;
    /** Around start and points, in tenths of a millimetre. */
    QRectF bounds;
};

/**
 * A design in the order in which the machine sews it: which thread comes when,
 * and which lines the needle draws. The lines are those of
 * EmbPattern::asStitchBlock(), but for one that would come from the origin, where
 * that is outside of the design, to a first stitch. In addition there are the jumps
 * between them; those before the first stitch and after the last one are left out.
 *
 * Never changes after construction, so that several threads may read it.
 */
class SewingOrder
{
public:
    /** Keeps @p pattern, which nobody may change from now on; it must not be null. */
    explicit SewingOrder(const QSharedPointer<Embroidery::EmbPattern> &pattern);

    /** The number of points of the design, whatever happens at them. */
    int pointCount() const { return m_pointCount; }
    /** Point @p i, from 0 to before pointCount(), in tenths of a millimetre. */
    QPointF pointAt(int i) const;

    /** What the design measures, in tenths of a millimetre; null where nothing is sewn. */
    QRectF bounds() const { return m_bounds; }

    /** The threads in the order of sewing; one that sews nothing is not among them. */
    const QVector<ThreadUse> &threadUses() const { return m_uses; }
    /** Of all thread on the fabric, in tenths of a millimetre. */
    double threadLength() const;
    /** Which use point `i` belongs to; -1 where nothing is sewn. */
    int useAt(int point) const;

    /** In the order of sewing, none longer than LongestRun. */
    const QVector<StitchRun> &runs() const { return m_runs; }

    /** Points; short enough for runs out of sight to be worth passing over. */
    static constexpr int LongestRun = 256;

private:
    class Builder;

    QSharedPointer<Embroidery::EmbPattern> m_pattern;
    int m_pointCount = 0;
    QRectF m_bounds;
    QVector<ThreadUse> m_uses;
    QVector<StitchRun> m_runs;
};
