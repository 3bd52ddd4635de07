#include "properties/core/PropertyFactory.h"

PropertyPreset *PropertyFactory::createPreset(const QString &) const
{
    return nullptr;
}

QByteArray PropertyFactory::loadBinaryLargeObject(const QString &) const
{
    return {};
}
