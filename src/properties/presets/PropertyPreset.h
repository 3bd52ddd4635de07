#pragma once

#include "properties/core/PropertyStruct.h"

class PropertyDescriptionPreset;
class PropertyString;

/** A group of values of one declared type; shared under its name, private without one. */
class PropertyPreset : public PropertyStruct
{
public:
    /** @p description must outlive the preset. */
    PropertyPreset(GProject *project, const PropertyDescriptionPreset *description);

    void acceptVisitor(PropertyVisitor *visitor) override;

    PropertyString *name() const { return m_name; }
    PropertyStruct *data() const { return m_data; }
    const PropertyDescriptionPreset *description() const { return m_description; }

    /** Whether it has a name. */
    bool isSharedGroup() const;

private:
    const PropertyDescriptionPreset *m_description;
    PropertyString *m_name;
    PropertyStruct *m_data;
};
