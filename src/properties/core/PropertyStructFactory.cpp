#include "properties/core/PropertyStructFactory.h"

#include "base/Error.h"
#include "properties/core/PropertyColor.h"
#include "properties/core/PropertyEnum.h"
#include "properties/core/PropertyFilename.h"
#include "properties/core/PropertyGeometry.h"
#include "properties/core/PropertyReference.h"
#include "properties/core/PropertyStruct.h"
#include "properties/core/PropertyValues.h"
#include "properties/descriptions/PropertyDescriptionEnum.h"
#include "properties/descriptions/PropertyDescriptionReference.h"
#include "properties/descriptions/PropertyDescriptionValues.h"

PropertyStructFactory::PropertyStructFactory(GProject *project, PropertyStruct *target)
    : m_project(project), m_target(target)
{
}

void PropertyStructFactory::addToContainer(Property *property)
{
    m_target->addProperty(property);
}

template <class P, class Description>
void PropertyStructFactory::addValue(const Description *description)
{
    addToContainer(new P(m_project, description->propertyName(), description->defaultValue()));
}

void PropertyStructFactory::visit(const PropertyDescriptionInt *description)
{
    addValue<PropertyInt>(description);
}

void PropertyStructFactory::visit(const PropertyDescriptionUnsignedInt *description)
{
    addValue<PropertyUnsignedInt>(description);
}

void PropertyStructFactory::visit(const PropertyDescriptionDouble *description)
{
    addValue<PropertyDouble>(description);
}

void PropertyStructFactory::visit(const PropertyDescriptionString *description)
{
    addValue<PropertyString>(description);
}

void PropertyStructFactory::visit(const PropertyDescriptionBool *description)
{
    addValue<PropertyBool>(description);
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
    addValue<PropertyPointF>(description);
}

void PropertyStructFactory::visit(const PropertyDescriptionSizeF *description)
{
    addValue<PropertySizeF>(description);
}

void PropertyStructFactory::visit(const PropertyDescriptionVector3D *description)
{
    addValue<PropertyVector3D>(description);
}

void PropertyStructFactory::visit(const PropertyDescriptionColor *description)
{
    addValue<PropertyColor>(description);
}
