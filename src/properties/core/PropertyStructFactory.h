#pragma once

#include "properties/descriptions/PropertyDescriptionVisitor.h"

#include <QString>

class GProject;
class Property;
class PropertyStruct;

/** Makes the described properties and puts them into a struct. */
class PropertyStructFactory : public PropertyDescriptionVisitor
{
public:
    PropertyStructFactory(GProject *project, PropertyStruct *target);

    void visit(const PropertyDescriptionInt *description) override;
    void visit(const PropertyDescriptionUnsignedInt *description) override;
    void visit(const PropertyDescriptionDouble *description) override;
    void visit(const PropertyDescriptionString *description) override;
    void visit(const PropertyDescriptionBool *description) override;
    void visit(const PropertyDescriptionEnum *description) override;
    void visit(const PropertyDescriptionReference *description) override;
    void visit(const PropertyDescriptionFilename *description) override;
    /** Throws Error: a struct may not contain a preset. */
    void visit(const PropertyDescriptionPreset *description) override;
    void visit(const PropertyDescriptionPointF *description) override;
    void visit(const PropertyDescriptionSizeF *description) override;
    void visit(const PropertyDescriptionVector3D *description) override;
    void visit(const PropertyDescriptionColor *description) override;

private:
    void addToContainer(Property *property);
    template <class P, class Description>
    void addValue(const Description *description);

    GProject *m_project;
    PropertyStruct *m_target;
};
