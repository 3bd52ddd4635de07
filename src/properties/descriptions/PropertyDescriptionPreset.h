#pragma once

#include "properties/descriptions/PropertyDescription.h"

#include <memory>
#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <vector>

/** Declares a type of preset: an ordered group of described properties. */
class PropertyDescriptionPreset : public PropertyDescription
{
    Q_DECLARE_TR_FUNCTIONS(PropertyDescription)

public:
    PropertyDescriptionPreset(const QString &typeName, const QString &description);

    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;

    /** Takes ownership; throws ErrorAlreadyExists when the name is taken. */
    void addProperty(PropertyDescription *property);

    /** In the order of addProperty(); they stay owned by this description. */
    QList<PropertyDescription *> orderedProperties() const;

    /** Throws ErrorDoesNotExist for an unknown name. */
    PropertyDescription *descriptionForPropertyWithName(const QString &name) const;

    QString typeName() const { return m_typeName; }

private:
    QString m_typeName;
    std::vector<std::unique_ptr<PropertyDescription>> m_properties;
    QHash<QString, PropertyDescription *> m_propertiesByName;
};
