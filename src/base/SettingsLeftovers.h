#pragma once

#include <QString>

/**
 * What a process leaves beside the settings that is killed, or let down by the disk, while
 * it writes them.
 */
class SettingsLeftovers
{
public:
    /**
     * Removes the lock of a process that no longer runs, or could not remove it, and the
     * half-written file that it left behind, if both are there beside the settings file
     * @p path. What somebody is writing just now stays, and so does any other file. Main
     * thread; fails silently, and costs one look when there is no lock.
     */
    static void remove(const QString &path);
};
