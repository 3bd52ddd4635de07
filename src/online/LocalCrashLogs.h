#pragma once

#include "online/GCrashLogCollector.h"

/** The logs that the program's own crash handler writes. */
class LocalCrashLogs : public GCrashLogCollectorImpl
{
public:
    QStringList logsSince(const QDateTime &since) const override;
};
