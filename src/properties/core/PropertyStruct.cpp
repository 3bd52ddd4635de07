#include "properties/core/PropertyStruct.h"

#include "base/Error.h"
#include "properties/core/PropertyStructFactory.h"
#include "properties/core/PropertyVisitor.h"
#include "properties/descriptions/PropertyDescription.h"

#include <QObject>

PropertyStruct::PropertyStruct(GProject *project, const QString &name,
                               const QList<PropertyDescription *> &descriptions)
    : Property(project, name)
{
    if (descriptions.isEmpty())
        return;
    PropertyStructFactory factory(project, this);
    reserveProperties(descriptions.count());
    for (const PropertyDescription *description : descriptions)
        description->acceptVisitor(&factory);
}

void PropertyStruct::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

Property *PropertyStruct::property(const QString &name) const
{
    if (Property *child = find(name))
        return child;
    throw ErrorDoesNotExist(tr("requested undefined property '%1'").arg(name));
}

QStringList PropertyStruct::propertyNames() const
{
    QStringList names;
    names.reserve(int(m_children.size()));
    for (const auto &child : m_children)
        names.append(child->propertyName());
    return names;
}

void PropertyStruct::insert(std::unique_ptr<Property> property)
{
    const QString name = property->propertyName();
    if (find(name))
        throw ErrorAlreadyExists(
            QObject::tr("property '%1' already exists in struct '%2'").arg(name, propertyName()));
    m_children.push_back(std::move(property));
}

Property *PropertyStruct::find(const QString &name) const
{
    for (const auto &child : m_children) {
        if (child->propertyName() == name)
            return child.get();
    }
    return nullptr;
}

void PropertyStruct::throwWrongType(const QString &name)
{
    throw ErrorTypeConflict(QObject::tr("requested property '%1' has wrong type").arg(name));
}
