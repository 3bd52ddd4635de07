#pragma once

class GProject;
class PropertyBool;
class PropertyByteArray;
class PropertyCircle;
class PropertyColor;
class PropertyDouble;
class PropertyEnum;
class PropertyFilename;
class PropertyInt;
class PropertyList;
class PropertyPointF;
class PropertyPolygon;
class PropertyPreset;
class PropertyPresetCollection;
class PropertyRect;
class PropertyReference;
class PropertySizeF;
class PropertyString;
class PropertyStringList;
class PropertyStruct;
class PropertyUnsignedInt;
class PropertyVector3D;

/**
 * Walks a tree of live properties. The visits of values do nothing by default;
 * those of structs and lists go through all children.
 */
class PropertyVisitor
{
public:
    virtual ~PropertyVisitor() = default;

    virtual void visit(PropertyBool *) {}
    virtual void visit(PropertyString *) {}
    virtual void visit(PropertyInt *) {}
    virtual void visit(PropertyUnsignedInt *) {}
    virtual void visit(PropertyDouble *) {}
    virtual void visit(PropertyPointF *) {}
    virtual void visit(PropertySizeF *) {}
    virtual void visit(PropertyVector3D *) {}
    virtual void visit(PropertyColor *) {}
    virtual void visit(PropertyEnum *) {}
    virtual void visit(PropertyFilename *) {}
    virtual void visit(PropertyCircle *) {}
    virtual void visit(PropertyPolygon *) {}
    virtual void visit(PropertyRect *) {}
    virtual void visit(PropertyByteArray *) {}
    virtual void visit(PropertyReference *) {}
    virtual void visit(PropertyStringList *) {}
    virtual void visit(PropertyList *list);
    virtual void visit(PropertyStruct *structure);
    virtual void visit(PropertyPresetCollection *collection);
    virtual void visit(PropertyPreset *preset);
    virtual void visit(GProject *project);

    /** Visits the children of @p structure in the order of their names. */
    virtual void visitStruct(PropertyStruct *structure);

    /** Visits as many elements of @p list as there were at the start. */
    virtual void visitList(PropertyList *list);
};
