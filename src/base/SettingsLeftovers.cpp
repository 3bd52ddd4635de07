#include "base/SettingsLeftovers.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>

namespace {

/** Longer takes no writing of so small a file, from the taking of the lock on. */
constexpr qint64 LongestWriting = 30; // seconds

/** QSettings writes to a file with six letters behind the name. */
QFileInfoList halfWritten(const QFileInfo &settings)
{
    const QString pattern = settings.fileName() + QLatin1String(".??????");
    return settings.absoluteDir().entryInfoList({pattern}, QDir::Files | QDir::NoSymLinks);
}

/**
 * Takes the lock, also from a process that was killed before it had signed it in full: by
 * what it says that might be anybody's. A process that runs has it locked in the kernel,
 * too, so that it can't be removed.
 */
bool take(QLockFile &lock)
{
    return lock.tryLock(0) || (lock.removeStaleLockFile() && lock.tryLock(0));
}

} // namespace

void SettingsLeftovers::remove(const QString &path)
{
    const QString lockPath = path + QLatin1String(".lock");
    // The lock of a process that was killed tells when that was. Without one a file with
    // such a name is somebody's own, as a copy with the ending ".backup".
    const QDateTime taken = QFileInfo(lockPath).lastModified();
    if (!taken.isValid())
        return;
    QLockFile lock(lockPath);
    if (!take(lock))
        return;
    const QFileInfoList files = halfWritten(QFileInfo(path));
    for (const QFileInfo &file : files) {
        const qint64 age = taken.secsTo(file.lastModified());
        if (age >= 0 && age <= LongestWriting)
            QFile::remove(file.absoluteFilePath());
    }
}
