#include "properties/descriptions/PropertyDescriptionEnum.h"

#include "base/Error.h"
#include "properties/descriptions/PropertyDescriptionVisitor.h"

PropertyDescriptionEnum::PropertyDescriptionEnum(const QString &propertyName,
                                                 const QString &displayName,
                                                 const QString &description,
                                                 const PropertyEnumElement &defaultElement)
    : PropertyDescriptionT(propertyName, displayName, description, defaultElement)
{
    if (!defaultElement.elementName.isEmpty())
        m_elements.append(defaultElement);
}

void PropertyDescriptionEnum::acceptVisitor(PropertyDescriptionVisitor *visitor) const
{
    visitor->visit(this);
}

void PropertyDescriptionEnum::addValue(const QString &elementName, const QString &displayName)
{
    addValue(PropertyEnumElement(elementName, displayName));
}

void PropertyDescriptionEnum::addValue(const PropertyEnumElement &element)
{
    m_elements.append(element);
}

PropertyEnumElement PropertyDescriptionEnum::elementByName(const QString &elementName) const
{
    for (const PropertyEnumElement &element : m_elements) {
        if (element.elementName == elementName)
            return element;
    }
    throw ErrorDoesNotExist(QStringLiteral("Enumeration type '%1' does not have '%2' element")
                                .arg(propertyName(), elementName));
}

void PropertyDescriptionEnum::setDefaultValueByName(const QString &elementName)
{
    setDefaultValue(elementByName(elementName));
}
