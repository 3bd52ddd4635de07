#pragma once

#include <QString>

/** What a process that is killed while it writes the settings leaves beside them. */
class SettingsLeftovers
{
public:
    /**
     * Removes the lock of a process that no longer runs and the half-written file that it
     * left behind, if both are there beside the settings file @p path. What a process that
     * runs is writing stays, and so does any other file. Main thread; fails silently.
     */
    static void remove(const QString &path);
};
