#include "ui/DriveTransfer.h"

#include <filesystem>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

bool isSameFile(const QString &first, const QString &second)
{
    std::error_code error;
    return std::filesystem::equivalent(std::filesystem::path(first.toStdU16String()),
                                       std::filesystem::path(second.toStdU16String()), error);
}

#ifdef Q_OS_UNIX
enum class Extent { File, Volume };

bool flushPath(const QString &path, Extent extent)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    bool flushed = ::fsync(descriptor) == 0;
#ifdef Q_OS_LINUX
    if (extent == Extent::Volume)
        flushed = ::syncfs(descriptor) == 0 && flushed;
#else
    Q_UNUSED(extent)
#endif
    ::close(descriptor);
    return flushed;
}
#endif

bool flushFile(const QString &path)
{
#ifdef Q_OS_UNIX
    return flushPath(path, Extent::File);
#else
    Q_UNUSED(path)
    return true;
#endif
}

} // namespace

DriveTransfer::DriveTransfer(const QString &target, const QStorageInfo &volume)
    : m_target(target), m_volume(volume)
{
}

bool DriveTransfer::isDriveThere() const
{
    // The empty folder that a pulled drive leaves behind would take the copies as well.
    const QStorageInfo now(m_target);
    return now.isValid() && now == m_volume;
}

bool DriveTransfer::copy(const QString &source) const
{
    const QString destination = QDir(m_target).absoluteFilePath(QFileInfo(source).fileName());
    if (!isDriveThere())
        return false;
    if (isSameFile(source, destination))
        return true;
    if (QFile::exists(destination))
        QFile::remove(destination);
    return QFile::copy(source, destination) && flushFile(destination) && isDriveThere();
}

bool DriveTransfer::flush() const
{
#ifdef Q_OS_UNIX
    return isDriveThere() && flushPath(m_target, Extent::Volume);
#else
    return isDriveThere();
#endif
}
