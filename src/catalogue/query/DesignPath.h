#pragma once

#include <QString>

/** Parts of a design's path as QFileInfo has them, without the cost of making one. */
namespace DesignPath {

/** The file's name up to its last dot. */
inline QString baseName(const QString &path)
{
    const QString name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    return name.left(name.lastIndexOf(QLatin1Char('.')));
}

/** The folder that the file lies in, without a slash at its end. */
inline QString folder(const QString &path)
{
    return path.left(path.lastIndexOf(QLatin1Char('/')));
}

} // namespace DesignPath
