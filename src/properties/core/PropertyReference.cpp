#include "properties/core/PropertyReference.h"

#include "base/Error.h"
#include "properties/core/PropertyVisitor.h"
#include "properties/descriptions/PropertyDescriptionPreset.h"
#include "properties/descriptions/PropertyDescriptionReference.h"
#include "properties/presets/PropertyPreset.h"

PropertyReference::PropertyReference(GProject *project,
                                     const PropertyDescriptionReference *description)
    : PropertyT(project, description->propertyName(),
                QSharedPointer<PropertyPreset>::create(project, description->targetType())),
      m_description(description)
{
}

void PropertyReference::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyReference::setValue(const QSharedPointer<PropertyPreset> &preset,
                                 const QString &undoText)
{
    if (!preset)
        throw Error(tr("reference property may not be set to NULL"));
    const PropertyDescriptionPreset *target = m_description->targetType();
    if (target != preset->description())
        throw ErrorTypeConflict(tr("cannot assign type '%1' to reference property of type '%2'")
                                    .arg(preset->description()->typeName(), target->typeName()));
    PropertyT::setValue(preset, undoText);
}
