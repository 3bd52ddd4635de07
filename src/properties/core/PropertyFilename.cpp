#include "properties/core/PropertyFilename.h"

#include "properties/core/PropertyVisitor.h"

PropertyFilename::PropertyFilename(GProject *project, const QString &name,
                                   const QString &defaultPath)
    : PropertyT(project, name, GFileName(defaultPath))
{
}

void PropertyFilename::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}
