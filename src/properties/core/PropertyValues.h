#pragma once

#include "properties/core/GCircle.h"
#include "properties/core/GFileName.h"
#include "properties/core/GPolygonF.h"
#include "properties/core/PropertyT.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QStringList>
#include <QVector3D>

// The properties of one plain value each. They differ by the type of the value
// and by the visit() that they call.

class PropertyBool : public PropertyT<bool>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};

class PropertyString : public PropertyT<QString>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};

class PropertyInt : public PropertyT<int>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};

class PropertyUnsignedInt : public PropertyT<unsigned int>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};

/** Compared exactly: a NaN always counts as a change. */
class PropertyDouble : public PropertyT<double>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};

class PropertyPointF : public PropertyT<QPointF>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};

class PropertySizeF : public PropertyT<QSizeF>
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

/** Alpha is kept in memory but not in files. */
class PropertyColor : public PropertyT<QColor>
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

class PropertyFilename : public PropertyT<GFileName>
{
public:
    PropertyFilename(GProject *project, const QString &name, const QString &defaultPath);
    void acceptVisitor(PropertyVisitor *visitor) override;
};

class PropertyStringList : public PropertyT<QStringList>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;

    /** The number of strings. */
    int count() const { return value().count(); }
};
