#include "app/application/SingleApplicationPrivate.h"

#include "base/GDebug.h"
#include "base/InstanceName.h"

#include <cerrno>
#include <csignal>
#include <QDeadlineTimer>
#include <QDir>
#include <QThread>

namespace {

// Longer than any start holds the lock.
constexpr int LongestStart = 10000;
constexpr unsigned long LockPollInterval = 10;

} // namespace

SingleApplicationPrivate::SingleApplicationPrivate(SingleApplication *application,
                                                   SingleApplication::Options modes)
    : owner(application), options(modes), blockServerName(genBlockServerName(modes)),
      startLock(QDir::temp().filePath(blockServerName + QStringLiteral(".lock")),
                QStringLiteral("hoopline-organizer"))
{
}

SingleApplicationPrivate::~SingleApplicationPrivate()
{
    enterStart();
    m_connectionMap.clear();
    if (socket)
        socket->close();
    lockBlock();
    if (server) {
        server->close();
        server.reset();
        if (InstanceBlock *record = block()) {
            record->primary = false;
            record->primaryPid = -1;
            record->primaryUser[0] = 0;
            record->seal();
        }
    }
    unlockBlock();
    memory.reset();
    startLock.unlockAndRemove();
}

void SingleApplicationPrivate::enterStart()
{
    QDeadlineTimer deadline(LongestStart);
    while (startLock.tryLock() == FileLock::HeldByOther && !deadline.hasExpired())
        QThread::msleep(LockPollInterval);
}

QString SingleApplicationPrivate::getUsername()
{
    return InstanceName::currentUser();
}

QString SingleApplicationPrivate::genBlockServerName(SingleApplication::Options options)
{
    using Mode = SingleApplication::Mode;
    InstanceName name;
    name.applicationName = QCoreApplication::applicationName();
    name.organisationName = QCoreApplication::organizationName();
    name.organisationDomain = QCoreApplication::organizationDomain();
    if (!options.testFlag(Mode::ExcludeAppVersion))
        name.applicationVersion = QCoreApplication::applicationVersion();
    if (!options.testFlag(Mode::ExcludeAppPath))
        name.applicationFilePath = QCoreApplication::applicationFilePath();
    if (options.testFlag(Mode::User))
        name.userName = getUsername();
    return name.toString();
}

bool SingleApplicationPrivate::openMemoryBlock()
{
    // The last detach removes a block that a killed process has left behind.
    QSharedMemory(blockServerName).attach(QSharedMemory::ReadWrite);

    memory = std::make_unique<QSharedMemory>(blockServerName);
    if (!memory->create(sizeof(InstanceBlock), QSharedMemory::ReadWrite))
        return memory->attach(QSharedMemory::ReadWrite) &&
               memory->size() >= int(sizeof(InstanceBlock));
    memory->lock();
    block()->initialize();
    memory->unlock();
    return true;
}

InstanceBlock *SingleApplicationPrivate::block() const
{
    return memory ? static_cast<InstanceBlock *>(memory->data()) : nullptr;
}

void SingleApplicationPrivate::lockBlock()
{
    if (block())
        memory->lock();
}

void SingleApplicationPrivate::unlockBlock()
{
    if (block())
        memory->unlock();
}

SingleApplicationPrivate::Record SingleApplicationPrivate::record() const
{
    const InstanceBlock *record = block();
    if (!record)
        return Record::None;
    if (!record->isIntact())
        return Record::Torn;
    return record->primary ? Record::Primary : Record::None;
}

bool SingleApplicationPrivate::recordedPrimaryLives() const
{
    if (record() != Record::Primary)
        return false;
    const auto pid = pid_t(block()->primaryPid);
    return pid > 0 && (kill(pid, 0) == 0 || errno != ESRCH);
}

void SingleApplicationPrivate::startPrimary()
{
    listen();
    instanceNumber = 0;
    InstanceBlock *record = block();
    if (!record)
        return;
    record->primary = true;
    record->primaryPid = QCoreApplication::applicationPid();
    qstrncpy(record->primaryUser, getUsername().toUtf8().constData(),
             sizeof(InstanceBlock::primaryUser));
    record->seal();
}

void SingleApplicationPrivate::listen()
{
    server = std::make_unique<QLocalServer>();
    server->setSocketOptions(options.testFlag(SingleApplication::Mode::User)
                                 ? QLocalServer::UserAccessOption
                                 : QLocalServer::WorldAccessOption);
    connect(server.get(), &QLocalServer::newConnection, this,
            &SingleApplicationPrivate::slotConnectionEstablished);
    const QStringList paths = InstanceName::socketPaths(blockServerName);
    for (const QString &path : paths) {
        QLocalServer::removeServer(path);
        if (server->listen(path))
            return;
        gWarning("SingleApplication") << "cannot listen at" << path << ":" << server->errorString();
    }
    gWarning("SingleApplication") << "later starts cannot raise this window";
}
