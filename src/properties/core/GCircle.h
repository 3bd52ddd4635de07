#pragma once

#include <QPointF>

/** A centre and a radius, in the units of whoever uses it. */
struct GCircle
{
    QPointF centre;
    double radius = 0;
};

inline bool operator==(const GCircle &a, const GCircle &b)
{
    return a.centre == b.centre && a.radius == b.radius;
}

inline bool operator!=(const GCircle &a, const GCircle &b)
{
    return !(a == b);
}
