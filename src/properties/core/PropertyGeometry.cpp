#include "properties/core/PropertyGeometry.h"

#include "properties/core/PropertyVisitor.h"

void PropertyPointF::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyRect::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyVector3D::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyCircle::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyPolygon::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}
