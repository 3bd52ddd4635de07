#pragma once

#include <cstddef>
#include <cstring>
#include <QByteArray>

/**
 * The shared-memory block in which the primary instance of the program is
 * recorded; in native byte order, to be touched only under the lock of its
 * QSharedMemory. Writers call seal() last, so that a block whose writer died
 * half-way shows.
 */
struct InstanceBlock
{
    bool primary;
    quint8 reserved[3];
    quint32 secondary;            ///< how many secondary instances have started so far
    alignas(8) qint64 primaryPid; ///< -1 when there is no primary
    quint16 checksum;
    char primaryUser[128]; ///< UTF-8, ends with NUL

    /** The checksum that the fields before `checksum` ask for. */
    quint16 computeChecksum() const
    {
        return qChecksum(reinterpret_cast<const char *>(this), offsetof(InstanceBlock, checksum));
    }

    bool isIntact() const { return checksum == computeChecksum(); }

    void seal() { checksum = computeChecksum(); }

    /** The state before any instance has started, sealed. */
    void initialize()
    {
        std::memset(static_cast<void *>(this), 0, sizeof(InstanceBlock));
        primaryPid = -1;
        seal();
    }
};

static_assert(offsetof(InstanceBlock, secondary) == 4);
static_assert(offsetof(InstanceBlock, primaryPid) == 8);
static_assert(offsetof(InstanceBlock, checksum) == 16);
static_assert(offsetof(InstanceBlock, primaryUser) == 18);
static_assert(sizeof(InstanceBlock) == 152);
