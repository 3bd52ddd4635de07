#pragma once

#include "base/files/MountTable.h"

#include <functional>
#include <QString>

/** Lists the mounts that may be removable drives, in the order of the system. */
using VolumeSource = std::function<QList<Mount>()>;

/** What the system's table of mounts tells of a drive, without a question to the drive. */
class Volumes
{
public:
    /** The mounts of this system that mayBeDrive(). */
    static QList<Mount> mounted();

    /**
     * A FAT file system, but none that the system itself starts from: those lie in known
     * places, or the table of partitions has them down as such.
     * @param deviceFacts folder where the system keeps what it knows of its devices
     */
    static bool mayBeDrive(const Mount &mount,
                           const QString &deviceFacts = QStringLiteral("/run/udev/data"));

    /** Whether @p fileSystemType is one that embroidery machines read. */
    static bool isFat(const QString &fileSystemType);
};
