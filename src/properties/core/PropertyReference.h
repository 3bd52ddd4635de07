#pragma once

#include "properties/core/PropertyT.h"

#include <QCoreApplication>
#include <QSharedPointer>

class PropertyDescriptionReference;
class PropertyPreset;

/** Points at a preset, either a shared one of a collection or one of its own; never null. */
class PropertyReference : public PropertyT<QSharedPointer<PropertyPreset>>
{
    Q_DECLARE_TR_FUNCTIONS(PropertyReference)

public:
    /** Starts with a fresh preset of the target type; @p description must outlive the property. */
    PropertyReference(GProject *project, const PropertyDescriptionReference *description);

    void acceptVisitor(PropertyVisitor *visitor) override;

    /** Throws Error for null and ErrorTypeConflict for a preset of another type. */
    void setValue(const QSharedPointer<PropertyPreset> &preset, const QString &undoText) override;

    const PropertyDescriptionReference *description() const { return m_description; }

private:
    const PropertyDescriptionReference *m_description;
};
