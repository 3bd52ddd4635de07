#include "base/files/FileStamp.h"

#include <cerrno>
#include <QFile>
#include <sys/stat.h>
#include <tuple>

namespace {

timespec modificationOf(const struct stat &info)
{
#ifdef Q_OS_MACOS
    return info.st_mtimespec;
#else
    return info.st_mtim;
#endif
}

} // namespace

FileStamp FileStamp::of(const QString &path)
{
    struct stat info;
    if (stat(QFile::encodeName(path).constData(), &info) != 0)
        return {};
    const timespec modified = modificationOf(info);
    FileStamp stamp;
    stamp.size = info.st_size;
    stamp.seconds = modified.tv_sec;
    stamp.nanoseconds = modified.tv_nsec;
    stamp.device = info.st_dev;
    stamp.inode = info.st_ino;
    return stamp;
}

bool FileStamp::isMissing(const QString &path)
{
    struct stat info;
    return lstat(QFile::encodeName(path).constData(), &info) != 0 && errno == ENOENT;
}

bool FileStamp::isNewerThan(const FileStamp &other) const
{
    return exists() && other.exists() &&
           std::tie(seconds, nanoseconds) > std::tie(other.seconds, other.nanoseconds);
}

bool FileStamp::operator==(const FileStamp &other) const
{
    return std::tie(size, seconds, nanoseconds, device, inode) ==
           std::tie(other.size, other.seconds, other.nanoseconds, other.device, other.inode);
}
