#include "base/files/FileLock.h"

#include "base/GDebug.h"

#include <cerrno>
#include <fcntl.h>
#include <QFile>
#include <QFileInfo>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr mode_t LockFileMode = 0600;
constexpr int LongestHolder = 256; // bytes

} // namespace

FileLock::FileLock(const QString &path, const QString &program)
    : m_path(QFile::encodeName(path)), m_program(program)
{
}

FileLock::~FileLock()
{
    unlock();
}

FileLock::Outcome FileLock::tryLock()
{
    while (!isHeld()) {
        if (!openFile())
            return unavailable();
        int result = 0;
        do
            result = flock(m_descriptor, LOCK_EX | LOCK_NB);
        while (result != 0 && errno == EINTR);
        if (result != 0) {
            const Outcome outcome = errno == EWOULDBLOCK ? HeldByOther : unavailable();
            unlock();
            return outcome;
        }
        // Its last holder may have taken the file away since it was opened.
        if (namesOpenFile())
            writeHolder();
        else
            unlock();
    }
    return Held;
}

bool FileLock::openFile()
{
    constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    m_descriptor = open(m_path.constData(), O_RDWR | O_CREAT | flags, LockFileMode);
    // Whoever may not write there can still lock.
    if (m_descriptor < 0)
        m_descriptor = open(m_path.constData(), O_RDONLY | flags);
    return m_descriptor >= 0;
}

bool FileLock::namesOpenFile() const
{
    struct stat opened;
    struct stat named;
    return fstat(m_descriptor, &opened) == 0 && lstat(m_path.constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

void FileLock::writeHolder()
{
    const QByteArray text = QByteArray::number(getpid()) + ' ' + m_program.toUtf8() + '\n';
    // The lock holds without the text.
    if (ftruncate(m_descriptor, 0) == 0)
        (void)!pwrite(m_descriptor, text.constData(), std::size_t(text.size()), 0);
}

void FileLock::unlock()
{
    if (isHeld())
        close(std::exchange(m_descriptor, -1));
}

void FileLock::unlockAndRemove()
{
    if (isHeld() && namesOpenFile())
        unlink(m_path.constData());
    unlock();
}

FileLock::Holder FileLock::holder() const
{
    Holder holder;
    QFile file(QFile::decodeName(m_path));
    // Whatever else bears the name could hold up its reader.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return holder;
    const QByteArray text = file.read(LongestHolder).trimmed();
    const int end = text.indexOf(' ');
    bool valid = false;
    const qint64 pid = text.left(end).toLongLong(&valid);
    if (!valid || end < 0 || pid <= 0)
        return holder;
    holder.pid = pid;
    holder.program = QString::fromUtf8(text.mid(end + 1));
    return holder;
}

FileLock::Outcome FileLock::unavailable()
{
    if (!std::exchange(m_toldUnavailable, true))
        gWarning("FileLock") << "no lock on" << QFile::decodeName(m_path) << ":"
                             << qt_error_string(errno);
    return Unavailable;
}
