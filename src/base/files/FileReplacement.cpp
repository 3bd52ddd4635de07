#include "base/files/FileReplacement.h"

#include "base/files/FolderListing.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr mode_t NewFileMode = 0666;
constexpr mode_t PrivateMode = 0600;
constexpr mode_t AllPermissions = 07777;
// A process identifier comes round again; no write takes this long.
constexpr qint64 LeftoverAgeSeconds = qint64(24) * 60 * 60;

std::atomic<unsigned> namesGiven{0};

/** Short, since the target's own name may be as long as the file system takes. */
QString temporaryName()
{
    return QStringLiteral(".hoopline-%1-%2.part").arg(getpid()).arg(namesGiven++);
}

/** The file at the end of a chain of symbolic links; links to what is not there included. */
QString linkTarget(const QString &path)
{
    constexpr int longestChain = 40; // as the kernel has it
    QString target = path;
    for (int i = 0; i < longestChain; ++i) {
        const QFileInfo info(target);
        if (!info.isSymLink())
            break;
        target = info.symLinkTarget();
    }
    return target;
}

/** Calls @p call again for as long as a signal breaks it off. */
template <class Call>
auto uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/** Some file systems have no way to wait for the disk; that is no failure of this file. */
bool cannotSync()
{
    return errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
}

/** In a container the few identifiers come round with every start, this process's own first. */
bool mayBeWriting(qint64 process, unsigned number)
{
    if (process == getpid())
        return number < namesGiven;
    return kill(pid_t(process), 0) == 0 || errno != ESRCH;
}

} // namespace

FileReplacement::FileReplacement(const QString &path, Access access)
    : m_folder(AT_FDCWD), m_target(QFile::encodeName(linkTarget(path)))
{
    if (!open(access))
        fail();
}

FileReplacement::FileReplacement(int folder, const QString &name, Access access)
    : m_folder(folder), m_target(QFile::encodeName(name))
{
    if (!open(access))
        fail();
}

FileReplacement::~FileReplacement()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    if (!m_temporary.isEmpty())
        unlinkat(m_folder, m_temporary.constData(), 0);
}

bool FileReplacement::open(Access access)
{
    struct stat before;
    // A link was followed already where it is to be.
    const bool exists = fstatat(m_folder, m_target.constData(), &before, AT_SYMLINK_NOFOLLOW) == 0;
    const bool isLink = exists && S_ISLNK(before.st_mode);
    if (exists && !isLink && !S_ISREG(before.st_mode)) {
        m_descriptor = uninterrupted(
            [&] { return openat(m_folder, m_target.constData(), O_WRONLY | O_CLOEXEC); });
        return m_descriptor >= 0;
    }
    // The folder would let a file be replaced that its owner has protected.
    if (exists && !isLink && faccessat(m_folder, m_target.constData(), W_OK, 0) != 0)
        return false;
    const QString folder = QFileInfo(QFile::decodeName(m_target)).path();
    const QByteArray name = QFile::encodeName(folder + QLatin1Char('/') + temporaryName());
    const mode_t mode = access == Private ? PrivateMode : NewFileMode;
    m_descriptor = uninterrupted([&] {
        return openat(m_folder, name.constData(),
                      O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
    });
    if (m_descriptor < 0)
        return false;
    m_temporary = name;
    // A file system without permissions refuses; there they mean nothing.
    if (exists && !isLink && access == AsBefore)
        (void)!fchmod(m_descriptor, before.st_mode & AllPermissions);
    return true;
}

bool FileReplacement::write(const QByteArray &data)
{
    const char *next = data.constData();
    auto left = std::size_t(data.size());
    while (left > 0 && m_error.isNull()) {
        errno = ENOSPC; // what it means when nothing is taken and nothing said
        const ssize_t written = uninterrupted([&] { return ::write(m_descriptor, next, left); });
        if (written <= 0)
            return fail();
        next += written;
        left -= std::size_t(written);
    }
    return m_error.isNull();
}

bool FileReplacement::commit(Durability durability)
{
    const bool durable = durability == Durable;
    return m_error.isNull() && (!durable || sync()) && closeFile() && replaceTarget() &&
           (!durable || syncDirectory());
}

bool FileReplacement::sync()
{
    return uninterrupted([this] { return fsync(m_descriptor); }) == 0 || cannotSync() || fail();
}

bool FileReplacement::closeFile()
{
    // After a failed close the descriptor is gone all the same.
    const int descriptor = std::exchange(m_descriptor, -1);
    return close(descriptor) == 0 || errno == EINTR || fail();
}

bool FileReplacement::replaceTarget()
{
    if (m_temporary.isEmpty())
        return true;
    if (renameat(m_folder, m_temporary.constData(), m_folder, m_target.constData()) != 0)
        return fail();
    m_temporary.clear();
    return true;
}

bool FileReplacement::syncDirectory()
{
    const QByteArray folder = QFile::encodeName(QFileInfo(QFile::decodeName(m_target)).path());
    const int descriptor = uninterrupted(
        [&] { return openat(m_folder, folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    // A folder that may be written but not listed cannot be waited for.
    if (descriptor < 0)
        return errno == EACCES || fail();
    const bool synced =
        uninterrupted([&] { return fsync(descriptor); }) == 0 || cannotSync() || fail();
    close(descriptor);
    return synced;
}

bool FileReplacement::fail()
{
    if (m_error.isNull()) {
        m_errorCode = errno;
        m_error = qt_error_string(m_errorCode);
    }
    return false;
}

void FileReplacement::removeLeftovers(const QString &directory)
{
    removeLeftovers(directory, FolderListing::fileNames(directory));
}

void FileReplacement::removeLeftovers(const QString &directory, const QVector<QByteArray> &names)
{
    static const QRegularExpression pattern(QStringLiteral("^\\.hoopline-(\\d+)-(\\d+)\\.part$"));
    // The folder may hold a hundred thousand previews: only a name like that gets a look.
    for (const QByteArray &name : names) {
        const auto match = name.startsWith(".hoopline-") ? pattern.match(QString::fromLatin1(name))
                                                         : QRegularExpressionMatch();
        if (!match.hasMatch())
            continue;
        const QFileInfo file(QDir(directory), match.captured());
        if (!file.isFile() || file.isSymLink())
            continue;
        const bool old =
            file.lastModified().secsTo(QDateTime::currentDateTime()) > LeftoverAgeSeconds;
        if (old || !mayBeWriting(match.captured(1).toLongLong(), match.captured(2).toUInt()))
            QFile::remove(file.filePath());
    }
}
