#pragma once

#include <QStringView>

/**
 * Parts of a design's path as QFileInfo has them, without the cost of making one. They are
 * views: the path must outlive them.
 */
namespace DesignPath {

/** The file's name up to its last dot. */
inline QStringView baseName(QStringView path)
{
    const QStringView name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    const auto dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? name : name.left(dot);
}

/** The folder that the file lies in, without a slash at its end. */
inline QStringView folder(QStringView path)
{
    const auto slash = path.lastIndexOf(QLatin1Char('/'));
    return slash < 0 ? QStringView() : path.left(slash);
}

} // namespace DesignPath
