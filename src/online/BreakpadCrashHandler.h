#pragma once

#include <QString>

/** Sees to it that a crash of the program leaves a log behind. */
class BreakpadCrashHandler
{
public:
    /**
     * From now on a crash writes a log into crashLogPath(), and then ends the
     * process as it would have ended anyway. The application's name and version
     * must be set. Does nothing where the operating system writes the logs, and
     * where the folder cannot be had.
     */
    static void install();

    /** Folder of the logs, in the temporary directory. */
    static QString crashLogPath();

    /**
     * Whether the folder is there and belongs to the user alone: the temporary
     * directory is open to everyone, so it might be someone else's.
     */
    static bool ownsCrashLogPath();
};
