#pragma once

class PropertyDescriptionBool;
class PropertyDescriptionColor;
class PropertyDescriptionDouble;
class PropertyDescriptionEnum;
class PropertyDescriptionFilename;
class PropertyDescriptionInt;
class PropertyDescriptionPointF;
class PropertyDescriptionPreset;
class PropertyDescriptionReference;
class PropertyDescriptionSizeF;
class PropertyDescriptionString;
class PropertyDescriptionUnsignedInt;
class PropertyDescriptionVector3D;

/** Walks declarations of properties; every visit does nothing by default. */
class PropertyDescriptionVisitor
{
public:
    virtual ~PropertyDescriptionVisitor() = default;

    virtual void visit(const PropertyDescriptionInt *) {}
    virtual void visit(const PropertyDescriptionUnsignedInt *) {}
    virtual void visit(const PropertyDescriptionDouble *) {}
    virtual void visit(const PropertyDescriptionString *) {}
    virtual void visit(const PropertyDescriptionBool *) {}
    virtual void visit(const PropertyDescriptionEnum *) {}
    virtual void visit(const PropertyDescriptionReference *) {}
    virtual void visit(const PropertyDescriptionFilename *) {}
    virtual void visit(const PropertyDescriptionPreset *) {}
    virtual void visit(const PropertyDescriptionPointF *) {}
    virtual void visit(const PropertyDescriptionSizeF *) {}
    virtual void visit(const PropertyDescriptionVector3D *) {}
    virtual void visit(const PropertyDescriptionColor *) {}
};
