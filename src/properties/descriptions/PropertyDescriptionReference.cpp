#include "properties/descriptions/PropertyDescriptionReference.h"

#include "properties/descriptions/PropertyDescriptionVisitor.h"

PropertyDescriptionReference::PropertyDescriptionReference(
    const PropertyDescriptionPreset *targetType, const QString &propertyName,
    const QString &displayName, const QString &description)
    : PropertyDescription(propertyName, displayName, description), m_targetType(targetType)
{
}

void PropertyDescriptionReference::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}
