#include "online/AvailableUpdate.h"

namespace {

bool hasScheme(const QUrl &url, const QString &scheme)
{
    return url.isValid() && !url.host().isEmpty() && url.scheme() == scheme;
}

} // namespace

bool AvailableUpdate::canBeInstalled() const
{
    return hasScheme(download, QStringLiteral("https"));
}

bool AvailableUpdate::hasReleaseNotes() const
{
    return hasScheme(releaseNotes, QStringLiteral("https")) ||
           hasScheme(releaseNotes, QStringLiteral("http"));
}
