#include "base/GGlobalIgnoreList.h"

#include "base/GSettings.h"

namespace {
const QString IgnoredWarnings = QStringLiteral("ignoredWarnings");
}

QStringList GGlobalIgnoreList::ignoredWarnings()
{
    return GSettings().value(IgnoredWarnings).toStringList();
}

void GGlobalIgnoreList::ignoreWarning(const QString &identifier)
{
    GSettings settings;
    QStringList identifiers = settings.value(IgnoredWarnings).toStringList();
    if (identifiers.contains(identifier))
        return;
    identifiers.append(identifier);
    settings.setValue(IgnoredWarnings, identifiers);
}

void GGlobalIgnoreList::resetIgnoredWarnings()
{
    GSettings().remove(IgnoredWarnings);
}
