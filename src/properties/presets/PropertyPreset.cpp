#include "properties/presets/PropertyPreset.h"

#include "properties/core/PropertyValues.h"
#include "properties/core/PropertyVisitor.h"
#include "properties/descriptions/PropertyDescriptionPreset.h"

PropertyPreset::PropertyPreset(GProject *project, const PropertyDescriptionPreset *description)
    : PropertyStruct(project, QStringLiteral("preset"), {}), m_description(description),
      m_name(addProperty(new PropertyString(project, QStringLiteral("name"), QString()))),
      m_data(addProperty(
          new PropertyStruct(project, QStringLiteral("data"), description->orderedProperties())))
{
}

void PropertyPreset::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

bool PropertyPreset::isSharedGroup() const
{
    return !m_name->value().isEmpty();
}
