#include "embroidery/PointsDirect.h"

namespace Embroidery {

float PointsDirect::getX(int i) const
{
    return m_pointList.at(2 * i);
}

float PointsDirect::getY(int i) const
{
    return m_pointList.at(2 * i + 1);
}

void PointsDirect::setLocation(int i, float x, float y)
{
    m_pointList[2 * i] = x;
    m_pointList[2 * i + 1] = y;
    if (isBoundEdge(x, y))
        m_edgeMoved = true;
    widen(x, y);
}

int PointsDirect::size() const
{
    return m_pointCount / 2;
}

void PointsDirect::add(float x, float y)
{
    ensureCapacity(m_pointCount + 2);
    float *place = m_pointList.data() + m_pointCount;
    place[0] = x;
    place[1] = y;
    m_pointCount += 2;
    widen(x, y);
}

void PointsDirect::add(float x, float y, int data)
{
    Q_UNUSED(data)
    add(x, y);
}

void PointsDirect::ensureCapacity(int n)
{
    if (m_pointList.size() <= n)
        m_pointList.resize(n);
}

void PointsDirect::resetBounds()
{
    m_minX = m_minY = MinimumStart;
    m_maxX = m_maxY = MaximumStart;
    m_boundsDirty = false;
    m_edgeMoved = false;
}

void PointsDirect::widen(float x, float y)
{
    if (m_minX > x)
        m_minX = x;
    if (x > m_maxX)
        m_maxX = x;
    if (m_minY > y)
        m_minY = y;
    if (y > m_maxY)
        m_maxY = y;
}

bool PointsDirect::checkBounds(float x, float y)
{
    const bool changes = m_minX > x || x > m_maxX || m_minY > y || y > m_maxY;
    widen(x, y);
    return changes;
}

bool PointsDirect::isBoundEdge(float x, float y) const
{
    return x == m_minX || x == m_maxX || y == m_minY || y == m_maxY;
}

QPointF PointsDirect::pos(int i) const
{
    return QPointF(getX(i), getY(i));
}

void PointsDirect::computeBounds(bool force)
{
    if (!m_boundsDirty && !(m_edgeMoved && force))
        return;
    resetBounds();
    for (int i = 0; i < m_pointCount; i += 2)
        widen(m_pointList.at(i), m_pointList.at(i + 1));
}

float PointsDirect::getMinX()
{
    computeBounds(true);
    return m_minX;
}

float PointsDirect::getMaxX()
{
    computeBounds(true);
    return m_maxX;
}

float PointsDirect::getMinY()
{
    computeBounds(true);
    return m_minY;
}

float PointsDirect::getMaxY()
{
    computeBounds(true);
    return m_maxY;
}

float PointsDirect::getWidth()
{
    computeBounds(true);
    return m_maxX - m_minX;
}

float PointsDirect::getHeight()
{
    computeBounds(true);
    return m_maxY - m_minY;
}

float PointsDirect::getCenterX()
{
    computeBounds(true);
    return static_cast<float>((m_minX + m_maxX) * 0.5);
}

float PointsDirect::getCenterY()
{
    computeBounds(true);
    return static_cast<float>((m_minY + m_maxY) * 0.5);
}

QRectF PointsDirect::boundingRect()
{
    computeBounds(true);
    const double left = m_minX;
    const double top = m_minY;
    return QRectF(left, top, m_maxX - left, m_maxY - top);
}

} // namespace Embroidery
