#include "catalogue/watch/FolderWatcher.h"

#include "base/files/MountTable.h"
#include "base/threads/BackgroundThread.h"
#include "catalogue/watch/FolderWalk.h"
#include "catalogue/watch/WatchTable.h"

#include <atomic>
#include <QFile>
#include <QSocketNotifier>

namespace {

constexpr int Delay = 1500; // milliseconds

/** Whether others change what lies there without this system hearing of it. */
bool isRemote(const QString &fileSystemType)
{
    static const QStringList remote{
        QStringLiteral("9p"),          QStringLiteral("afs"),
        QStringLiteral("autofs"),      QStringLiteral("ceph"),
        QStringLiteral("cifs"),        QStringLiteral("fuse.curlftpfs"),
        QStringLiteral("fuse.davfs"),  QStringLiteral("fuse.glusterfs"),
        QStringLiteral("fuse.rclone"), QStringLiteral("fuse.gvfsd-fuse"),
        QStringLiteral("fuse.s3fs"),   QStringLiteral("fuse.sshfs"),
        QStringLiteral("nfs"),         QStringLiteral("nfs4"),
        QStringLiteral("smb3"),        QStringLiteral("smbfs")};
    return remote.contains(fileSystemType);
}

} // namespace

/** What the walking threads work on; it goes with the last of them. */
struct FolderWatcher::Shared
{
    WatchTable table;
    std::atomic<bool> abandoned{false};
};

FolderWatcher::FolderWatcher(QObject *parent)
    : QObject(parent), m_shared(std::make_shared<Shared>())
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(Delay);
    connect(&m_timer, &QTimer::timeout, this, &FolderWatcher::tell);
    if (m_shared->table.descriptor() < 0)
        return;
    m_notifier = new QSocketNotifier(m_shared->table.descriptor(), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &FolderWatcher::readEvents);
}

FolderWatcher::~FolderWatcher()
{
    m_shared->abandoned = true;
    // Ahead of the table, whose descriptor it is.
    delete m_notifier;
}

void FolderWatcher::setFolders(const QStringList &folders)
{
    const QStringList before = std::exchange(m_folders, folders);
    for (const QString &folder : before) {
        if (folders.contains(folder))
            continue;
        m_shared->table.remove(QFile::encodeName(folder));
        m_changed.remove(folder);
        m_seenByScan.remove(folder);
    }
    lookAgain();
    tell();
}

void FolderWatcher::lookAgain()
{
    if (!m_notifier)
        return;
    const QList<Mount> mounts = MountTable::mounts();
    QStringList missing;
    for (const QString &folder : std::as_const(m_folders)) {
        if (!m_beingWalked.contains(folder) &&
            !m_shared->table.isWatched(QFile::encodeName(folder)) &&
            !isRemote(MountTable::holding(folder, mounts).fileSystemType))
            missing.append(folder);
    }
    // Only now: the walks keep the table busy.
    for (const QString &folder : std::as_const(missing))
        watch(folder);
}

void FolderWatcher::watch(const QString &folder)
{
    const int room = WatchTable::roomForAll() / m_folders.size();
    const bool started = BackgroundThread::tryStart(
        [this, folder, room, shared = m_shared, address = m_mailbox.address()] {
            FolderWalk(shared->table, room, shared->abandoned).run(QFile::encodeName(folder));
            address.post([this, folder] {
                m_beingWalked.remove(folder);
                if (m_beingWalked.isEmpty())
                    emit lookingThrough(false);
                emit folderWatched(folder);
            });
        });
    if (!started)
        return;
    m_beingWalked.insert(folder);
    emit lookingThrough(true);
}

QStringList FolderWatcher::changedFolders() const
{
    QStringList folders;
    for (const QString &folder : m_folders) {
        if (m_told.contains(folder))
            folders.append(folder);
    }
    return folders;
}

void FolderWatcher::readEvents()
{
    const QList<FolderEvent> events = m_shared->table.takeEvents();
    for (const FolderEvent &event : events)
        take(event);
}

void FolderWatcher::take(const FolderEvent &event)
{
    if (FolderWalk::isHidden(event.name))
        return;
    const QByteArray path = event.folder + '/' + event.name;
    switch (event.kind) {
    case FolderEvent::FileChanged:
        if (FolderWalk::isDesign(event.name) && !m_expected.contains(path))
            noteChange(path);
        break;
    case FolderEvent::FolderCame:
        // What is in it is found out when it is there as a whole.
        m_newFolders.append(path);
        startTimer();
        break;
    case FolderEvent::FolderWent:
        m_shared->table.remove(path);
        noteChange(path);
        break;
    case FolderEvent::Moved:
        // Of those further down their upper ones tell.
        if (m_folders.contains(QFile::decodeName(event.folder))) {
            m_shared->table.remove(event.folder);
            noteChange(event.folder);
        }
        break;
    case FolderEvent::Overflow:
        for (const QString &folder : std::as_const(m_folders))
            noteChange(QFile::encodeName(folder));
        break;
    }
}

void FolderWatcher::noteChange(const QByteArray &path)
{
    for (const QString &folder : std::as_const(m_folders)) {
        if (WatchTable::isInside(path, QFile::encodeName(folder)))
            m_changed.insert(folder);
    }
    startTimer();
}

void FolderWatcher::startTimer()
{
    if (!m_timer.isActive())
        m_timer.start();
}

void FolderWatcher::walkNewFolders(Telling telling)
{
    if (m_newFolders.isEmpty())
        return;
    const QList<QByteArray> folders = std::exchange(m_newFolders, {});
    const int room = WatchTable::roomForAll() / qMax(1, m_folders.size());
    BackgroundThread::tryStart([=, shared = m_shared, address = m_mailbox.address()] {
        for (const QByteArray &folder : folders) {
            const bool hasDesigns = FolderWalk(shared->table, room, shared->abandoned).run(folder);
            if (hasDesigns && telling == Tell)
                address.post([this, folder] { noteChange(folder); });
        }
    });
}

void FolderWatcher::beginScan()
{
    readEvents();
    walkNewFolders(Quiet);
    m_scanning = true;
    m_seenByScan = std::exchange(m_changed, {});
}

void FolderWatcher::endScan(bool complete)
{
    m_scanning = false;
    if (!complete)
        m_changed += m_seenByScan;
    m_seenByScan.clear();
    tell();
}

void FolderWatcher::expect(const QStringList &files)
{
    for (const QString &file : files)
        m_expected.insert(QFile::encodeName(file));
}

void FolderWatcher::expectNothing()
{
    // What has happened until now is waiting there.
    readEvents();
    m_expected.clear();
}

void FolderWatcher::tell()
{
    walkNewFolders(Tell);
    if (m_scanning || m_told == m_changed)
        return;
    m_told = m_changed;
    emit changedFoldersChanged();
}
