#include "properties/descriptions/PropertyDescriptionValues.h"

#include "properties/descriptions/PropertyDescriptionVisitor.h"

void PropertyDescriptionInt::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionUnsignedInt::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionDouble::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionBool::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionString::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionFilename::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionPointF::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionSizeF::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionVector3D::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionColor::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}
