#include "properties/lists/PropertyListT.h"

#include "base/Error.h"

#include <QObject>

namespace PropertyListErrors {

static QString nameOf(const Property *element)
{
    return element ? element->propertyName() : QString();
}

void throwCannotAdd(const Property *element, const PropertyList *list)
{
    throw ErrorTypeConflict(QObject::tr("cannot add '%1' to list '%2', wrong type")
                                .arg(nameOf(element), list->propertyName()));
}

void throwWrongElement(const Property *element, const PropertyList *list)
{
    throw ErrorTypeConflict(QObject::tr("property '%1' in list '%2' has wrong type'")
                                .arg(nameOf(element), list->propertyName()));
}

} // namespace PropertyListErrors
