#include "online/LocalCrashLogs.h"

#include "online/BreakpadCrashHandler.h"

QStringList LocalCrashLogs::logsSince(const QDateTime &since) const
{
    if (!BreakpadCrashHandler::ownsCrashLogPath())
        return {};
    return collectLogs(QDir(BreakpadCrashHandler::crashLogPath()), since);
}
