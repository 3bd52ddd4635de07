#pragma once

#include <QPointF>
#include <QRectF>
#include <QVector>

namespace Embroidery {

/**
 * A flat store of points in tenths of a millimetre that keeps its bounds as it
 * grows. Access by index is unchecked.
 *
 * The running maximum starts just above 0, not at the most negative float, so
 * the bounds of a design that lies wholly in the negative reach to the origin.
 */
class PointsDirect
{
public:
    PointsDirect() = default;
    PointsDirect(const PointsDirect &) = default;
    PointsDirect &operator=(const PointsDirect &) = default;
    virtual ~PointsDirect() = default;

    virtual float getX(int i) const;
    virtual float getY(int i) const;

    /** Moves point @p i; the bounds are recomputed later if it touched their edge. */
    virtual void setLocation(int i, float x, float y);

    /** The stitch command of point @p i. */
    virtual int getData(int i) const = 0;

    /** The number of points. */
    virtual int size() const;

    virtual void add(float x, float y);
    virtual void add(float x, float y, int data);

    /** Makes the store hold at least @p n floats. */
    void ensureCapacity(int n);

    void resetBounds();

    /** Widens the bounds to the point; true if any of the four changed. */
    bool checkBounds(float x, float y);

    /** True if x or y lies exactly on the bounds. */
    bool isBoundEdge(float x, float y) const;

    QPointF pos(int i) const;

    /** The number of floats in use: twice size(). */
    int count() const { return m_pointCount; }

    bool isEmpty() const { return m_pointCount == 0; }

    /** Recomputes stale bounds; those that may only have shrunk if @p force is set. */
    void computeBounds(bool force);

    float getMinX();
    float getMaxX();
    float getMinY();
    float getMaxY();
    float getWidth();
    float getHeight();
    float getCenterX();
    float getCenterY();
    QRectF boundingRect();

protected:
    /** Sets memory for @p n floats aside without using it. */
    void reserveFloats(int n) { m_pointList.reserve(n); }

private:
    void widen(float x, float y);

    QVector<float> m_pointList;
    int m_pointCount = 0;
    float m_minX = MinimumStart;
    float m_minY = MinimumStart;
    float m_maxX = MaximumStart;
    float m_maxY = MaximumStart;
    bool m_boundsDirty = false;
    bool m_edgeMoved = false;

    static constexpr float MinimumStart = 3.4028234663852886e+38F;
    static constexpr float MaximumStart = 1.1754943508222875e-38F;
};

} // namespace Embroidery
