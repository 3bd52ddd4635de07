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

void PropertyPointF::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertySizeF::acceptVisitor(PropertyVisitor *visitor)
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

void PropertyColor::acceptVisitor(PropertyVisitor *visitor)
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

PropertyFilename::PropertyFilename(GProject *project, const QString &name,
                                   const QString &defaultPath)
    : PropertyT(project, name, GFileName(defaultPath))
{
}

void PropertyFilename::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyStringList::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}
