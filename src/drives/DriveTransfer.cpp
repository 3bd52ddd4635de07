#include "drives/DriveTransfer.h"

#include "base/files/FileReplacement.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 PieceSize = 256 * 1024; // bytes

/** What lies at @p path, as the system numbers devices; 0 for nothing. */
quint64 deviceAt(const QString &path)
{
    struct stat facts;
    return stat(QFile::encodeName(path).constData(), &facts) == 0 ? facts.st_dev : 0;
}

/** Drivers differ in what they do with other names; a machine could not read them. */
bool isFatName(const QString &name)
{
    return std::all_of(name.begin(), name.end(), [](QChar c) {
        return c >= QLatin1Char(' ') && !QStringLiteral("\"*/:<>?\\|").contains(c);
    });
}

bool isSameFile(const QString &first, const QString &second)
{
    std::error_code error;
    return std::filesystem::equivalent(std::filesystem::path(first.toStdU16String()),
                                       std::filesystem::path(second.toStdU16String()), error);
}

/** FAT knows one permission, which any program of its owner's may lift. */
void liftProtection(const QString &path)
{
    const QFileInfo file(path);
    if (file.isFile() && !file.isWritable())
        QFile::setPermissions(path, file.permissions() | QFile::WriteOwner);
}

/** 0, or the system's number for what went wrong. */
int flushVolume(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return errno;
#ifdef Q_OS_LINUX
    const int error = ::syncfs(descriptor) == 0 ? 0 : errno;
#else
    const int error = ::fsync(descriptor) == 0 ? 0 : errno;
#endif
    ::close(descriptor);
    return error;
}

TransferResult::Reason reasonOf(int errorCode)
{
    switch (errorCode) {
    case ENOSPC:
    case EDQUOT:
        return TransferResult::NoSpace;
    case EROFS:
    case EACCES:
    case EPERM:
        return TransferResult::NotWritable;
    case EINVAL:
    case EILSEQ:
    case ENAMETOOLONG:
        return TransferResult::NameNotAllowed;
    case ENODEV:
    case ENXIO:
    case ENOTCONN:
        return TransferResult::DriveGone;
    default:
        return TransferResult::Other;
    }
}

} // namespace

DriveTransfer::DriveTransfer(const QString &target, quint64 device)
    : m_target(target), m_device(device ? device : deviceAt(target))
{
    if (isDriveThere())
        FileReplacement::removeLeftovers(m_target);
}

bool DriveTransfer::isDriveThere() const
{
    // The empty folder that a pulled drive leaves behind would take the copies as well.
    const quint64 now = deviceAt(m_target);
    return now != 0 && now == m_device;
}

TransferResult::Reason DriveTransfer::copy(const QString &source, const Told &told)
{
    m_systemText.clear();
    const QString name = QFileInfo(source).fileName();
    const QString destination = QDir(m_target).absoluteFilePath(name);
    if (!isDriveThere())
        return TransferResult::DriveGone;
    if (isSameFile(source, destination))
        return TransferResult::None;
    if (!isFatName(name))
        return TransferResult::NameNotAllowed;
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly))
        return sourceReason(file);
    liftProtection(destination);
    return replace(file, destination, told);
}

TransferResult::Reason DriveTransfer::replace(QFile &source, const QString &destination,
                                              const Told &told)
{
    FileReplacement file(destination, FileReplacement::AsBefore);
    while (true) {
        const QByteArray piece = source.read(PieceSize);
        if (source.error() != QFile::NoError)
            return sourceReason(source);
        if (piece.isEmpty())
            break;
        if (!file.write(piece))
            return driveReason(file, source.size());
        if (!told(piece.size()))
            return TransferResult::Other;
    }
    if (!file.commit(FileReplacement::Durable))
        return driveReason(file, source.size());
    return isDriveThere() ? TransferResult::None : TransferResult::DriveGone;
}

TransferResult::Reason DriveTransfer::sourceReason(const QFile &source)
{
    m_systemText = source.errorString();
    return source.exists() ? TransferResult::SourceUnreadable : TransferResult::SourceGone;
}

TransferResult::Reason DriveTransfer::driveReason(const FileReplacement &file, qint64 size)
{
    m_systemText = file.errorString();
    if (!isDriveThere())
        return TransferResult::DriveGone;
    const QStorageInfo drive(m_target);
    // Some drivers have one answer to everything.
    if (!drive.isReadOnly() && drive.bytesAvailable() < size)
        return TransferResult::NoSpace;
    const TransferResult::Reason reason = reasonOf(file.errorCode());
    return reason == TransferResult::NoSpace ? TransferResult::FolderFull : reason;
}

TransferResult::Reason DriveTransfer::flush()
{
    if (!isDriveThere())
        return TransferResult::DriveGone;
    const int error = flushVolume(m_target);
    if (error == 0)
        return TransferResult::None;
    m_systemText = qt_error_string(error);
    return reasonOf(error);
}
