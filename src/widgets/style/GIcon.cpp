#include "widgets/style/GIcon.h"

#include "widgets/style/SvgIconEngine.h"

namespace {

bool isSvg(const QString &path)
{
    return path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

QIcon iconForFile(const QString &path)
{
    return isSvg(path) ? QIcon(new SvgIconEngine(path, path)) : QIcon(path);
}

} // namespace

GIcon::GIcon(const QString &resourcePath) : QIcon(iconForFile(resourcePath)) {}

GIcon::GIcon(const QString &offPath, const QString &onPath)
    : QIcon(new SvgIconEngine(offPath, onPath))
{
}
