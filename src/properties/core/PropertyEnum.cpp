#include "properties/core/PropertyEnum.h"

#include "base/Error.h"
#include "properties/core/PropertyVisitor.h"
#include "properties/descriptions/PropertyDescriptionEnum.h"

PropertyEnum::PropertyEnum(GProject *project, const QString &name,
                           const PropertyDescriptionEnum *description)
    : PropertyT(project, name, description->defaultValue()), m_description(description)
{
}

void PropertyEnum::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyEnum::setValue(const PropertyEnumElement &element, const QString &undoText)
{
    if (!m_description->elements().contains(element))
        throw ErrorTypeConflict(QStringLiteral("%1 (%2) is not an element of enum %3")
                                    .arg(element.elementName, element.displayName, propertyName()));
    PropertyT::setValue(element, undoText);
}
