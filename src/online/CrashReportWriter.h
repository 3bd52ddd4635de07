#pragma once

#include <QByteArray>

/**
 * Writes the crash report from inside the signal handler. Everything that needs
 * memory or a lock is done by install(); afterwards only functions that are safe
 * in a signal handler are called. Linux only.
 */
class CrashReportWriter
{
public:
    /**
     * Handles the signals of a crash from now on.
     * @param path file that is made at the crash; not made when anything has that name
     * @param head first lines of the report, each with its line end
     */
    static void install(const QByteArray &path, const QByteArray &head);
};
