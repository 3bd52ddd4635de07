#pragma once

#include <QString>
#include <QStringList>

/** The warnings that the user has silenced for good, by their identifiers. */
class GGlobalIgnoreList
{
public:
    static QStringList ignoredWarnings();
    static void ignoreWarning(const QString &identifier);
    static void resetIgnoredWarnings();
};
