#pragma once

#include "base/files/MountTable.h"

#include <QString>

class QStorageInfo;

/** What the choice of a drive depends on; a value, taken from a volume at one moment. */
struct DriveInfo
{
    Mount mount; ///< empty where the volume was not found by its mount
    QString fileSystemType;
    QString name; ///< The volume's label; often empty.
    QString rootPath;
    qint64 bytesTotal = -1;
    bool root = false;
    bool valid = false;
    bool ready = false;
    bool readOnly = false;
    bool denied = false; ///< This user may not write to it.

    /** Asks the drive, which may take its time. */
    static DriveInfo fromVolume(const QStorageInfo &volume);
    static DriveInfo fromMount(const Mount &mount);

    /**
     * Any FAT volume that this user can write to counts as a USB drive, but the root volume,
     * since the file system is all that can be told about a drive.
     */
    bool mightBeUsbDrive() const;

    /** Its label, or its root path. */
    QString displayName() const;

    /** Label, or root path, and size as shown to the user. */
    QString displayText() const;

    /** Whether the user sees the same drive. */
    bool operator==(const DriveInfo &other) const;
};
