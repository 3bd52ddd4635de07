#pragma once

#include "base/LogRing.h"

#include <cstdio>
#include <QHash>
#include <QMutex>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

/** Level bits of the log. */
namespace LogLevel {
constexpr int Debug = 1;
constexpr int Warning = 2;
constexpr int Critical = 4;
constexpr int Function = 8;
constexpr int All = 0x7fffffff;
} // namespace LogLevel

/**
 * Writes the log, one line at a time, to stderr or a file. Facilities are class
 * names or slash-separated paths; the mask of the closest configured ancestor
 * decides what is written, and "/" is the root of all. Logging never fails.
 * Any thread may log; suppressions, width and output are set at start-up.
 */
class GLogServer : public QObject
{
    Q_OBJECT

public:
    GLogServer() = default;
    ~GLogServer() override;

    /** Whether @p facility (may be null) is to log at @p level. */
    bool canLog(const char *facility, int level);
    void logMessage(const char *facility, int level, QString text);

    /** The facility's own mask; all bits when it has none. */
    int logLevelForFacility(const QString &facility);
    void setLogLevelForFacility(const char *facility, int mask);
    void setGlobalLogLevel(int mask);

    /** Width of the facility column, in characters. */
    void setFacilityWidth(int width);
    /** Drops messages whose trimmed text equals @p text from now on. */
    void addSuppression(const QString &text);
    /** Every facility that has ever asked canLog(). */
    QStringList knownFacilities() const;

    /** Truncates and writes the file @p path; stderr when it cannot be opened. */
    void setOutputFile(const QString &path);

    /**
     * The last lines, for a crash report. They may leave the machine with it, so
     * a message that could name a file is left out of them.
     */
    const LogRing &recentLines() const { return m_recent; }

private:
    void closeOutput();

    QHash<QString, int> m_levels;
    mutable QMutex m_mutex;
    int m_facilityWidth = 16;
    QSet<QString> m_known;
    QSet<QString> m_suppressions;
    FILE *m_stream = stderr;
    LogRing m_recent;
};

/** The log of the process; usable before main() begins and until the process ends. */
GLogServer *theLogServer();
