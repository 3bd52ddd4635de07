#include "properties/PropertyStructFactory.h"

#include "app/base/Error.h"
#include "properties/PropertyDescriptionEnum.h"
#include "properties/PropertyDescriptionReference.h"
#include "properties/PropertyDescriptionValues.h"
#include "properties/PropertyEnum.h"
#include "properties/PropertyReference.h"
#include "properties/PropertyStruct.h"
#include "properties/PropertyValues.h"

PropertyStructFactory::PropertyStructFactory(GProject *project, PropertyStruct *target)
    : m_project(project), m_target(target)
{
}

void PropertyStructFactory::addToContainer(Property *property)
{
    m_target->addProperty(property);
}

void PropertyStructFactory::visit(const PropertyDescriptionInt *description)
{
    addToContainer(
        new PropertyInt(m_project, description->propertyName(), description->defaultValue()));
}

void PropertyStructFactory::visit(const PropertyDescriptionUnsignedInt *description)
{
    addToContainer(new PropertyUnsignedInt(m_project, description->propertyName(),
                                           description->defaultValue()));
}

void PropertyStructFactory::visit(const PropertyDescriptionDouble *description)
{
    addToContainer(
        new PropertyDouble(m_project, description->propertyName(), description->defaultValue()));
}

void PropertyStructFactory::visit(const PropertyDescriptionString *description)
{
    addToContainer(
        new PropertyString(m_project, description->propertyName(), description->defaultValue()));
}

void PropertyStructFactory::visit(const PropertyDescriptionBool *description)
{
    addToContainer(
        new PropertyBool(m_project, description->propertyName(), description->defaultValue()));
}

void PropertyStructFactory::visit(const PropertyDescriptionEnum *description)
{
    addToContainer(new PropertyEnum(m_project, description->propertyName(), description));
}

void PropertyStructFactory::visit(const PropertyDescriptionReference *description)
{
    addToContainer(new PropertyReference(m_project, description));
}

void PropertyStructFactory::visit(const PropertyDescriptionFilename *description)
{
    addToContainer(new PropertyFilename(m_project, description->propertyName(),
                                        description->defaultValue().path()));
}

void PropertyStructFactory::visit(const PropertyDescriptionPreset *)
{
    throw Error(QStringLiteral("PropertyStruct may not contain a preset property"));
}

void PropertyStructFactory::visit(const PropertyDescriptionPointF *description)
{
    addToContainer(
        new PropertyPointF(m_project, description->propertyName(), description->defaultValue()));
}

void PropertyStructFactory::visit(const PropertyDescriptionSizeF *description)
{
    addToContainer(
        new PropertySizeF(m_project, description->propertyName(), description->defaultValue()));
}

void PropertyStructFactory::visit(const PropertyDescriptionVector3D *description)
{
    addToContainer(
        new PropertyVector3D(m_project, description->propertyName(), description->defaultValue()));
}

void PropertyStructFactory::visit(const PropertyDescriptionColor *description)
{
    addToContainer(
        new PropertyColor(m_project, description->propertyName(), description->defaultValue()));
}
