#pragma once

#include <QString>

class QStorageInfo;

/** What the choice of a drive depends on; a value, taken from a volume at one moment. */
struct DriveInfo
{
    QString fileSystemType;
    QString name; ///< The volume's label; often empty.
    QString rootPath;
    qint64 bytesTotal = -1;
    bool root = false;
    bool valid = false;
    bool ready = false;
    bool readOnly = false;

    static DriveInfo fromVolume(const QStorageInfo &volume);

    /**
     * Any writable FAT volume but the root volume counts as a USB drive, since
     * the file system is all that can be told about a drive.
     */
    bool mightBeUsbDrive() const;

    /** Label, or root path, and size as shown to the user. */
    QString displayText() const;
};
