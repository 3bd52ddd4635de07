#include "catalogue/watch/WatchTable.h"

#include <algorithm>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <cstring>
#include <QFile>
#include <sys/inotify.h>
#include <unistd.h>
#endif

namespace {

constexpr int MostFolders = 8192;

#ifdef Q_OS_LINUX

constexpr uint32_t WatchedEvents = IN_CLOSE_WRITE | IN_CREATE | IN_DELETE | IN_MOVED_FROM |
                                   IN_MOVED_TO | IN_MOVE_SELF | IN_ONLYDIR | IN_EXCL_UNLINK;
constexpr std::size_t BufferSize = std::size_t(64) * 1024;

/** False for what makes no difference to anybody. */
bool translate(uint32_t mask, FolderEvent::Kind *kind)
{
    const bool isFolder = mask & IN_ISDIR;
    if (mask & IN_MOVE_SELF)
        *kind = FolderEvent::Moved;
    else if (isFolder && (mask & (IN_CREATE | IN_MOVED_TO)))
        *kind = FolderEvent::FolderCame;
    else if (isFolder && (mask & IN_MOVED_FROM))
        *kind = FolderEvent::FolderWent;
    else if (!isFolder && (mask & (IN_CLOSE_WRITE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO)))
        *kind = FolderEvent::FileChanged;
    else
        return false;
    return true;
}

#endif

} // namespace

WatchTable::WatchTable()
{
#ifdef Q_OS_LINUX
    m_descriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
#endif
}

WatchTable::~WatchTable()
{
#ifdef Q_OS_LINUX
    if (m_descriptor >= 0)
        close(m_descriptor);
#endif
}

bool WatchTable::isInside(const QByteArray &path, const QByteArray &folder)
{
    return path.startsWith(folder) &&
           (path.size() == folder.size() || folder.endsWith('/') || path.at(folder.size()) == '/');
}

WatchTable::Adding WatchTable::add(const QByteArray &folder)
{
#ifdef Q_OS_LINUX
    const int watch = inotify_add_watch(m_descriptor, folder.constData(), WatchedEvents);
    if (watch < 0)
        return errno == ENOSPC ? NoRoom : Refused;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const QByteArray known = m_folders.value(watch, folder);
    m_folders.insert(watch, known);
    return known == folder ? Added : KnownElsewhere;
#else
    Q_UNUSED(folder)
    return Refused;
#endif
}

bool WatchTable::isWatched(const QByteArray &folder) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::find(m_folders.begin(), m_folders.end(), folder) != m_folders.end();
}

void WatchTable::remove(const QByteArray &folder)
{
#ifdef Q_OS_LINUX
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (auto entry = m_folders.begin(); entry != m_folders.end();) {
        if (isInside(entry.value(), folder)) {
            inotify_rm_watch(m_descriptor, entry.key());
            entry = m_folders.erase(entry);
        } else {
            ++entry;
        }
    }
#else
    Q_UNUSED(folder)
#endif
}

QList<FolderEvent> WatchTable::takeEvents()
{
    QList<FolderEvent> events;
#ifdef Q_OS_LINUX
    alignas(inotify_event) char buffer[BufferSize];
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (ssize_t size; (size = read(m_descriptor, buffer, BufferSize)) > 0;) {
        const inotify_event *event = nullptr;
        for (const char *next = buffer; next < buffer + size; next += sizeof(*event) + event->len) {
            event = reinterpret_cast<const inotify_event *>(next);
            FolderEvent::Kind kind = FolderEvent::Overflow;
            if (event->mask & IN_Q_OVERFLOW)
                events.append({kind, QByteArray(), QByteArray()});
            else if (event->mask & IN_IGNORED)
                m_folders.remove(event->wd);
            else if (m_folders.contains(event->wd) && translate(event->mask, &kind))
                events.append({kind, m_folders.value(event->wd),
                               QByteArray(event->name,
                                          int(event->len ? strnlen(event->name, event->len) : 0))});
        }
    }
#endif
    return events;
}

int WatchTable::roomForAll()
{
#ifdef Q_OS_LINUX
    // Other programs of the user want to watch as well.
    QFile limit(QStringLiteral("/proc/sys/fs/inotify/max_user_watches"));
    const int half = limit.open(QIODevice::ReadOnly) ? limit.readAll().trimmed().toInt() / 2 : 0;
    return half > 0 ? std::min(half, MostFolders) : MostFolders;
#else
    return MostFolders;
#endif
}
