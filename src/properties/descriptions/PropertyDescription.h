#pragma once

#include <QString>

class PropertyDescriptionVisitor;

/** What a PropertyDescriptionVisitor can be sent to. */
class PropertyDescriptionVisitorAcceptor
{
public:
    virtual void acceptVisitor(PropertyDescriptionVisitor *visitor) const = 0;
    virtual ~PropertyDescriptionVisitorAcceptor() = default;
};

/** Declares a property; outlives the properties that are made from it. */
class PropertyDescription : public PropertyDescriptionVisitorAcceptor
{
public:
    PropertyDescription(const QString &propertyName, const QString &displayName,
                        const QString &description)
        : m_propertyName(propertyName), m_displayName(displayName), m_description(description)
    {
    }

    QString propertyName() const { return m_propertyName; }
    QString displayName() const { return m_displayName; }
    QString description() const { return m_description; }

private:
    QString m_propertyName;
    QString m_displayName;
    QString m_description;
};

/** Declares a property of one value and what that is at first. */
template <class T>
class PropertyDescriptionT : public PropertyDescription
{
public:
    PropertyDescriptionT(const QString &propertyName, const QString &displayName,
                         const QString &description, const T &defaultValue = T())
        : PropertyDescription(propertyName, displayName, description), m_defaultValue(defaultValue)
    {
    }

    T defaultValue() const { return m_defaultValue; }
    virtual void setDefaultValue(T value) { m_defaultValue = value; }

private:
    T m_defaultValue;
};
