#include "properties/core/PropertyValues.h"

#include "properties/core/PropertyVisitor.h"

void PropertyBool::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyString::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyInt::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyUnsignedInt::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyDouble::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertySizeF::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyStringList::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}
