#pragma once

#include <QByteArray>
#include <QString>

/** Keeps the large binary values of a document beside its XML file. */
class PropertySerializer
{
public:
    virtual ~PropertySerializer() = default;

    /** @p data is compressed already. */
    virtual void saveBinaryLargeObject(const QString &id, const QByteArray &data);
};
