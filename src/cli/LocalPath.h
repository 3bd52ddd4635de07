#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

/** Names of files as the user gave them. */
namespace LocalPath {

/** For Qt's file classes, which take a name that begins with ":" for a resource. */
inline QString of(const QString &name)
{
    return name.startsWith(QLatin1Char(':')) ? QStringLiteral("./") + name : name;
}

/** Absolute, as the catalogue has it. */
inline QString absolute(const QString &name)
{
    return QDir::cleanPath(QFileInfo(of(name)).absoluteFilePath());
}

/** Whether @p path is @p folder or something below it; both absolute. */
inline bool liesIn(const QString &path, const QString &folder)
{
    return path == folder || folder == QLatin1String("/") ||
           path.startsWith(folder + QLatin1Char('/'));
}

} // namespace LocalPath
