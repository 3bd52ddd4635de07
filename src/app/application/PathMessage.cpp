#include "app/application/PathMessage.h"

#include <QFile>
#include <QFileInfo>

QByteArray PathMessage::encode(const QStringList &paths)
{
    QByteArray message;
    for (const QString &path : paths) {
        const QByteArray entry = QFile::encodeName(path) + '\0';
        if (message.size() + entry.size() > MaxSize)
            break;
        message += entry;
    }
    return message;
}

QStringList PathMessage::decode(const QByteArray &message)
{
    QStringList paths;
    // A path without its end was cut off, and may be the name of something else.
    const int end = message.lastIndexOf('\0');
    if (message.size() > MaxSize || end < 0)
        return paths;
    const QList<QByteArray> entries = message.left(end).split('\0');
    for (const QByteArray &entry : entries) {
        const QString path = QFile::decodeName(entry);
        if (entry.startsWith('/') && QFileInfo::exists(path))
            paths.append(path);
    }
    return paths;
}
