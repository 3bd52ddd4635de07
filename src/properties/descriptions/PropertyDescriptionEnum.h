#pragma once

#include "properties/core/PropertyEnumElement.h"
#include "properties/descriptions/PropertyDescription.h"

#include <QList>

/** Declares an enumeration and its elements. */
class PropertyDescriptionEnum : public PropertyDescriptionT<PropertyEnumElement>
{
public:
    /** @p defaultElement becomes the first element, unless its elementName is empty. */
    PropertyDescriptionEnum(const QString &propertyName, const QString &displayName,
                            const QString &description, const PropertyEnumElement &defaultElement);

    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;

    void addValue(const QString &elementName, const QString &displayName);
    void addValue(const PropertyEnumElement &element);
    QList<PropertyEnumElement> elements() const { return m_elements; }

    /** The first element of this name. @throws ErrorDoesNotExist when there is none */
    PropertyEnumElement elementByName(const QString &elementName) const;

    /** Throws ErrorDoesNotExist when there is no such element. */
    void setDefaultValueByName(const QString &elementName);

private:
    QList<PropertyEnumElement> m_elements;
};
