#include "properties/core/PropertyColor.h"

#include "properties/core/PropertyVisitor.h"

void PropertyColor::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}
