#include "drives/DriveTransfer.h"

#include "base/files/FileReplacement.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 PieceSize = qint64(256) * 1024; // bytes

/** On what the open @p folder lies; 0 where nothing is open. */
quint64 deviceOf(int folder)
{
    struct stat facts;
    return fstat(folder, &facts) == 0 ? facts.st_dev : 0;
}

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

/** 0, or the system's number for what went wrong. */
int flushVolume(int folder)
{
#ifdef Q_OS_LINUX
    return ::syncfs(folder) == 0 ? 0 : errno;
#else
    return ::fsync(folder) == 0 ? 0 : errno;
#endif
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
    : m_target(target),
      m_root(::open(QFile::encodeName(target).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      m_device(device ? device : deviceOf(m_root))
{
    if (isDriveThere())
        FileReplacement::removeLeftovers(m_target);
}

DriveTransfer::~DriveTransfer()
{
    if (m_root >= 0)
        ::close(m_root);
}

bool DriveTransfer::isDriveThere() const
{
    // The empty folder that a pulled drive leaves behind would take the copies as well.
    return m_device != 0 && deviceOf(m_root) == m_device && deviceAt(m_target) == m_device;
}

TransferResult::Reason DriveTransfer::copy(const QString &source, const Told &told)
{
    m_systemText.clear();
    const QString name = QFileInfo(source).fileName();
    if (!isDriveThere())
        return TransferResult::DriveGone;
    if (holds(name, source))
        return TransferResult::None;
    if (!isFatName(name))
        return TransferResult::NameNotAllowed;
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly))
        return sourceReason(file);
    liftProtection(name);
    return replace(file, name, told);
}

/** Whether @p source is that very file on the drive. */
bool DriveTransfer::holds(const QString &name, const QString &source) const
{
    struct stat there;
    struct stat given;
    return fstatat(m_root, QFile::encodeName(name).constData(), &there, 0) == 0 &&
           stat(QFile::encodeName(source).constData(), &given) == 0 &&
           there.st_dev == given.st_dev && there.st_ino == given.st_ino;
}

/** FAT knows one permission, which any program of its owner's may lift. */
void DriveTransfer::liftProtection(const QString &name) const
{
    const QByteArray encoded = QFile::encodeName(name);
    struct stat facts;
    if (fstatat(m_root, encoded.constData(), &facts, 0) == 0 && S_ISREG(facts.st_mode) &&
        faccessat(m_root, encoded.constData(), W_OK, 0) != 0)
        (void)!fchmodat(m_root, encoded.constData(), facts.st_mode | S_IWUSR, 0);
}

TransferResult::Reason DriveTransfer::replace(QFile &source, const QString &name, const Told &told)
{
    FileReplacement file(m_root, name, FileReplacement::AsBefore);
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
    const int error = flushVolume(m_root);
    if (error == 0)
        return TransferResult::None;
    m_systemText = qt_error_string(error);
    return reasonOf(error);
}
