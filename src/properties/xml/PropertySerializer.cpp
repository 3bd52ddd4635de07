#include "properties/xml/PropertySerializer.h"

void PropertySerializer::saveBinaryLargeObject(const QString &, const QByteArray &) {}
