#include "properties/descriptions/PropertyDescriptionPreset.h"

#include "base/Error.h"
#include "properties/descriptions/PropertyDescriptionVisitor.h"

PropertyDescriptionPreset::PropertyDescriptionPreset(const QString &typeName,
                                                     const QString &description)
    : PropertyDescription(QString(), QString(), description), m_typeName(typeName)
{
}

void PropertyDescriptionPreset::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionPreset::addProperty(PropertyDescription *property)
{
    std::unique_ptr<PropertyDescription> owned(property);
    const QString name = property->propertyName();
    if (m_propertiesByName.contains(name))
        throw ErrorAlreadyExists(
            tr("property '%1' already exists in preset '%2'").arg(name, m_typeName));
    m_properties.push_back(std::move(owned));
    m_propertiesByName.insert(name, property);
}

QList<PropertyDescription *> PropertyDescriptionPreset::orderedProperties() const
{
    QList<PropertyDescription *> properties;
    for (const auto &property : m_properties)
        properties.append(property.get());
    return properties;
}

PropertyDescription *
PropertyDescriptionPreset::descriptionForPropertyWithName(const QString &name) const
{
    PropertyDescription *property = m_propertiesByName.value(name);
    if (!property)
        throw ErrorDoesNotExist(
            tr("property '%1' does not exist in preset '%2'").arg(name, m_typeName));
    return property;
}
