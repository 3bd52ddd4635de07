#pragma once

#include "properties/core/PropertyEnumElement.h"
#include "properties/core/PropertyT.h"

class PropertyDescriptionEnum;

/**
 * One element of an enumeration. Reading a file may leave an element here that the
 * description doesn't list; the user can't set such a one.
 */
class PropertyEnum : public PropertyT<PropertyEnumElement>
{
public:
    /** Starts with the default of @p description, which must outlive the property. */
    PropertyEnum(GProject *project, const QString &name,
                 const PropertyDescriptionEnum *description);

    void acceptVisitor(PropertyVisitor *visitor) override;

    /** Throws ErrorTypeConflict when the description doesn't list @p element. */
    void setValue(const PropertyEnumElement &element, const QString &undoText) override;

    const PropertyDescriptionEnum *description() const { return m_description; }

private:
    const PropertyDescriptionEnum *m_description;
};
