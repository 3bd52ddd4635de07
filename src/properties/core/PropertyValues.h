#pragma once

#include "properties/core/PropertyT.h"

#include <QSizeF>
#include <QStringList>

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

class PropertySizeF : public PropertyT<QSizeF>
{
public:
    using PropertyT::PropertyT;
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
