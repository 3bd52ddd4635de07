#include "properties/PropertySerializer.h"

void PropertySerializer::saveBinaryLargeObject(const QString &, const QByteArray &) {}
