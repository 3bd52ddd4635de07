#include "app/application/SingleApplicationPrivate.h"

#include "base/InstanceName.h"

#include <cstring>
#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QThread>
#include <QTimer>

namespace {

constexpr int StreamVersion = QDataStream::Qt_5_6; // 17 on the wire
static_assert(StreamVersion == 17);
constexpr qint64 HeaderLength = sizeof(quint64);
constexpr int ReadBufferSize = 64 * 1024;
// Longer than any start holds the lock, so that a dead process locks nobody out.
constexpr int StaleLockTime = 10000;
constexpr unsigned long LockPollInterval = 10;

} // namespace

SingleApplicationPrivate::SingleApplicationPrivate(SingleApplication *application,
                                                   SingleApplication::Options modes)
    : owner(application), options(modes), blockServerName(genBlockServerName(modes)),
      startLock(QDir::temp().filePath(blockServerName + QStringLiteral(".lock")))
{
    startLock.setStaleLockTime(StaleLockTime);
}

SingleApplicationPrivate::~SingleApplicationPrivate()
{
    enterStart();
    m_connectionMap.clear();
    if (socket)
        socket->close();
    if (memory && memory->isAttached()) {
        memory->lock();
        if (server) {
            server->close();
            server.reset();
            block()->primary = false;
            block()->primaryPid = -1;
            block()->primaryUser[0] = 0;
            block()->seal();
        }
        memory->unlock();
    }
    memory.reset();
}

void SingleApplicationPrivate::enterStart()
{
    QDeadlineTimer deadline(StaleLockTime);
    while (!startLock.isLocked() && !startLock.tryLock() &&
           startLock.error() == QLockFile::LockFailedError && !deadline.hasExpired())
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
    return static_cast<InstanceBlock *>(memory->data());
}

void SingleApplicationPrivate::startPrimary()
{
    QLocalServer::removeServer(blockServerName);
    server = std::make_unique<QLocalServer>();
    server->setSocketOptions(options.testFlag(SingleApplication::Mode::User)
                                 ? QLocalServer::UserAccessOption
                                 : QLocalServer::WorldAccessOption);
    server->listen(blockServerName);
    connect(server.get(), &QLocalServer::newConnection, this,
            &SingleApplicationPrivate::slotConnectionEstablished);

    block()->primary = true;
    block()->primaryPid = QCoreApplication::applicationPid();
    qstrncpy(block()->primaryUser, getUsername().toUtf8().constData(),
             sizeof(InstanceBlock::primaryUser));
    block()->seal();
    instanceNumber = 0;
}

QByteArray SingleApplicationPrivate::initMessage(ConnectionType type) const
{
    QByteArray body;
    QDataStream bodyStream(&body, QIODevice::WriteOnly);
    bodyStream.setVersion(StreamVersion);
    bodyStream << blockServerName.toLatin1() << quint8(type) << instanceNumber;
    bodyStream << qChecksum(body.constData(), uint(body.size()));

    QByteArray header;
    QDataStream headerStream(&header, QIODevice::WriteOnly);
    headerStream.setVersion(StreamVersion);
    headerStream << quint64(body.size());
    return header + body;
}

void SingleApplicationPrivate::connectToPrimary(int timeout, ConnectionType type)
{
    if (!socket)
        socket = std::make_unique<QLocalSocket>();
    if (socket->state() == QLocalSocket::ConnectedState)
        return;
    if (socket->state() != QLocalSocket::ConnectingState)
        socket->connectToServer(blockServerName, QIODevice::ReadWrite);
    if (socket->state() == QLocalSocket::ConnectingState)
        socket->waitForConnected(timeout);
    if (socket->state() != QLocalSocket::ConnectedState)
        return;
    socket->write(initMessage(type));
    socket->flush();
    socket->waitForBytesWritten(timeout);
}

void SingleApplicationPrivate::slotConnectionEstablished()
{
    QLocalSocket *client = server->nextPendingConnection();
    if (!client)
        return;
    client->setReadBufferSize(ReadBufferSize);
    m_connectionMap.insert(client, ConnectionInfo());

    connect(client, &QLocalSocket::aboutToClose, this, [this, client] {
        const ConnectionInfo info = m_connectionMap.value(client);
        if (info.stage == Stage::Connected && client->bytesAvailable() > 0)
            slotDataAvailable(client, info.instanceId);
    });
    connect(client, &QLocalSocket::disconnected, this, [this, client] {
        m_connectionMap.remove(client);
        client->deleteLater();
    });
    connect(client, &QLocalSocket::readyRead, this, [this, client] { readFrom(client); });
    QTimer::singleShot(InitMessageTimeout, client, [this, client] {
        if (m_connectionMap.contains(client) &&
            m_connectionMap.value(client).stage != Stage::Connected)
            drop(client);
    });
}

void SingleApplicationPrivate::readFrom(QLocalSocket *client)
{
    const auto connection = m_connectionMap.constFind(client);
    if (connection == m_connectionMap.constEnd())
        return;
    switch (connection->stage) {
    case Stage::Header:
        readInitMessageHeader(client);
        break;
    case Stage::Body:
        readInitMessageBody(client);
        break;
    case Stage::Connected:
        slotDataAvailable(client, connection->instanceId);
        break;
    }
}

void SingleApplicationPrivate::readInitMessageHeader(QLocalSocket *client)
{
    const auto connection = m_connectionMap.find(client);
    if (connection == m_connectionMap.end() || client->bytesAvailable() < HeaderLength)
        return;
    QDataStream stream(client);
    stream.setVersion(StreamVersion);
    stream >> connection->msgLen;
    if (connection->msgLen > MaxInitMessageLength) {
        drop(client);
        return;
    }
    connection->stage = Stage::Body;
    if (client->bytesAvailable() >= qint64(connection->msgLen))
        readInitMessageBody(client);
}

void SingleApplicationPrivate::readInitMessageBody(QLocalSocket *client)
{
    const auto connection = m_connectionMap.find(client);
    if (connection == m_connectionMap.end() ||
        client->bytesAvailable() < qint64(connection->msgLen))
        return;
    const QByteArray body = client->read(qint64(connection->msgLen));
    QDataStream stream(body);
    stream.setVersion(StreamVersion);
    QByteArray name;
    quint8 type = 0;
    quint32 instanceId = 0;
    quint16 checksum = 0;
    stream >> name >> type >> instanceId >> checksum;
    if (stream.status() != QDataStream::Ok || QLatin1String(name) != blockServerName ||
        checksum != qChecksum(body.constData(), uint(body.size()) - sizeof(checksum))) {
        drop(client);
        return;
    }
    connection->instanceId = instanceId;
    connection->stage = Stage::Connected;

    const bool announced = ConnectionType(type) == ConnectionType::SecondaryInstance &&
                           options.testFlag(SingleApplication::Mode::SecondaryNotification);
    if (ConnectionType(type) == ConnectionType::NewInstance || announced)
        tellOwner([application = owner] { emit application->instanceStarted(); });
    if (client->bytesAvailable() > 0)
        slotDataAvailable(client, instanceId);
}

void SingleApplicationPrivate::slotDataAvailable(QLocalSocket *client, quint32 instanceId)
{
    tellOwner([application = owner, instanceId, message = client->readAll()] {
        emit application->receivedMessage(instanceId, message);
    });
}

void SingleApplicationPrivate::tellOwner(const std::function<void()> &signal)
{
    // Who hears of it may let events in, and these may delete the socket that is being read.
    QMetaObject::invokeMethod(owner, signal, Qt::QueuedConnection);
}

void SingleApplicationPrivate::drop(QLocalSocket *client)
{
    // Without its record the client is not heard any more, not even while it closes.
    m_connectionMap.remove(client);
    client->abort();
}
