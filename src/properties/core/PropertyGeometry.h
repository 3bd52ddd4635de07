#pragma once

#include "properties/core/GCircle.h"
#include "properties/core/GPolygonF.h"
#include "properties/core/PropertyT.h"

#include <QPointF>
#include <QRectF>
#include <QVector3D>

// The properties of one geometric value each.

class PropertyPointF : public PropertyT<QPointF>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};

class PropertyRect : public PropertyT<QRectF>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};

class PropertyVector3D : public PropertyT<QVector3D>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};

class PropertyCircle : public PropertyT<GCircle>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};

class PropertyPolygon : public PropertyT<GPolygonF>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};
