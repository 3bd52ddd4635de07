#include "embroidery/DataPoints.h"

namespace Embroidery {

int DataPoints::getData(int i) const
{
    return m_data.constData()[i];
}

void DataPoints::add(float x, float y, int data)
{
    PointsDirect::add(x, y);
    m_data.append(data);
}

void DataPoints::setData(int data)
{
    m_data.append(data);
}

void DataPoints::setData(int i, int data)
{
    m_data[i] = data;
}

void DataPoints::reserve(int pointCount)
{
    reserveFloats(2 * pointCount);
    m_data.reserve(pointCount);
}

} // namespace Embroidery
