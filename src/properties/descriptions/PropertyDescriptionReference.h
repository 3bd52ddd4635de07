#pragma once

#include "properties/descriptions/PropertyDescription.h"

class PropertyDescriptionPreset;

/** Declares a reference to a preset of one type. */
class PropertyDescriptionReference : public PropertyDescription
{
public:
    PropertyDescriptionReference(const PropertyDescriptionPreset *targetType,
                                 const QString &propertyName, const QString &displayName,
                                 const QString &description);

    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;

    const PropertyDescriptionPreset *targetType() const { return m_targetType; }

private:
    const PropertyDescriptionPreset *m_targetType;
};
