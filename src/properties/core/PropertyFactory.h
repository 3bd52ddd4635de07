#pragma once

#include "properties/core/PropertyEnumElement.h"

#include <QByteArray>
#include <QString>

class Property;
class PropertyDescriptionEnum;
class PropertyPreset;

/** Makes what a file names while it is read. */
class PropertyFactory
{
public:
    virtual ~PropertyFactory() = default;

    /** A new element of the list @p parent, owned by the caller; throws Error for an unknown name.
     */
    virtual Property *createProperty(const QString &elementName, const Property *parent) const = 0;

    virtual PropertyEnumElement createEnumElem(const PropertyDescriptionEnum *description,
                                               const QString &elementName) const = 0;

    /** A new preset of a type, owned by the caller, or null when there are no such presets. */
    virtual PropertyPreset *createPreset(const QString &typeName) const;

    /** The compressed bytes that were saved under @p id, or nothing. */
    virtual QByteArray loadBinaryLargeObject(const QString &id) const;
};
