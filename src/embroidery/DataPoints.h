#pragma once

#include "embroidery/PointsDirect.h"

namespace Embroidery {

/** Points that carry a stitch command each, in a second flat vector. */
class DataPoints : public PointsDirect
{
public:
    using PointsDirect::add;

    int getData(int i) const override;
    void add(float x, float y, int data) override;

    /** Appends a command without a point. */
    void setData(int data);

    /** Overwrites the command of point @p i. */
    void setData(int i, int data);

    /** The commands of all points, for a walk over them. */
    const QVector<int> &commands() const { return m_data; }

    /** Sets memory for @p pointCount points aside. */
    void reserve(int pointCount);

private:
    QVector<int> m_data;
};

} // namespace Embroidery
