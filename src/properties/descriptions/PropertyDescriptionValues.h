#pragma once

#include "properties/core/GFileName.h"
#include "properties/descriptions/PropertyDescription.h"

#include <QColor>
#include <QPointF>
#include <QSizeF>
#include <QVector3D>

// The descriptions that hold a default value and nothing else.

class PropertyDescriptionInt : public PropertyDescriptionT<int>
{
public:
    using PropertyDescriptionT::PropertyDescriptionT;
    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;
};

class PropertyDescriptionUnsignedInt : public PropertyDescriptionT<unsigned int>
{
public:
    using PropertyDescriptionT::PropertyDescriptionT;
    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;
};

class PropertyDescriptionDouble : public PropertyDescriptionT<double>
{
public:
    using PropertyDescriptionT::PropertyDescriptionT;
    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;
};

class PropertyDescriptionBool : public PropertyDescriptionT<bool>
{
public:
    using PropertyDescriptionT::PropertyDescriptionT;
    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;
};

class PropertyDescriptionString : public PropertyDescriptionT<QString>
{
public:
    using PropertyDescriptionT::PropertyDescriptionT;
    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;
};

class PropertyDescriptionFilename : public PropertyDescriptionT<GFileName>
{
public:
    using PropertyDescriptionT::PropertyDescriptionT;
    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;
};

class PropertyDescriptionPointF : public PropertyDescriptionT<QPointF>
{
public:
    using PropertyDescriptionT::PropertyDescriptionT;
    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;
};

class PropertyDescriptionSizeF : public PropertyDescriptionT<QSizeF>
{
public:
    using PropertyDescriptionT::PropertyDescriptionT;
    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;
};

class PropertyDescriptionVector3D : public PropertyDescriptionT<QVector3D>
{
public:
    using PropertyDescriptionT::PropertyDescriptionT;
    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;
};

class PropertyDescriptionColor : public PropertyDescriptionT<QColor>
{
public:
    using PropertyDescriptionT::PropertyDescriptionT;
    void acceptVisitor(PropertyDescriptionVisitor *visitor) const override;
};
