#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

/**
 * Reads XML property lists. A list becomes what its first dictionary holds:
 * strings, numbers, bools, lists and maps. @throws Error
 */
class PlistLoader
{
public:
    static QVariant read(const QString &fileName);
    static QVariant parse(const QByteArray &data);
};
