// How the processes behind the guard talk.

#include "app/application/PathMessage.h"
#include "app/application/SingleApplicationPrivate.h"
#include "base/InstanceName.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QTimer>

namespace {

constexpr int StreamVersion = QDataStream::Qt_5_6; // 17 on the wire
static_assert(StreamVersion == 17);
constexpr qint64 HeaderLength = sizeof(quint64);
constexpr int ReadBufferSize = 64 * 1024;
/** What the primary answers to a new instance. */
constexpr char Hear = 1;

} // namespace

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
    const QStringList paths = InstanceName::socketPaths(blockServerName);
    for (const QString &path : paths) {
        if (socket->state() != QLocalSocket::ConnectingState)
            socket->connectToServer(path, QIODevice::ReadWrite);
        if (socket->state() == QLocalSocket::ConnectingState)
            socket->waitForConnected(timeout);
        if (socket->state() == QLocalSocket::ConnectedState)
            break;
    }
    if (socket->state() != QLocalSocket::ConnectedState)
        return;
    socket->write(initMessage(type));
    socket->flush();
    socket->waitForBytesWritten(timeout);
}

SingleApplicationPrivate::Answer
SingleApplicationPrivate::announce(const QByteArray &message, int timeout,
                                   std::chrono::milliseconds patience)
{
    socket.reset();
    connectToPrimary(timeout, ConnectionType::NewInstance);
    if (socket->state() != QLocalSocket::ConnectedState)
        return Answer::NobodyThere;
    socket->write(message);
    const QDeadlineTimer deadline(patience);
    while (socket->state() == QLocalSocket::ConnectedState && socket->bytesAvailable() == 0 &&
           !deadline.hasExpired())
        socket->waitForReadyRead(int(deadline.remainingTime()));
    if (socket->bytesAvailable() == 0)
        return socket->state() == QLocalSocket::ConnectedState ? Answer::Silent
                                                               : Answer::NobodyThere;
    while (socket->bytesToWrite() > 0 && socket->waitForBytesWritten(timeout))
        continue;
    return Answer::Heard;
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
    connect(client, &QLocalSocket::disconnected, this, [this, client] { forget(client); });
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
    const bool isNew = ConnectionType(type) == ConnectionType::NewInstance;
    // It shall wait for the end of this process rather than raise a window that is going.
    if (isNew && owner->isQuitting()) {
        drop(client);
        return;
    }
    connection->instanceId = instanceId;
    connection->stage = Stage::Connected;
    if (isNew)
        client->write(&Hear, sizeof(Hear));

    const bool announced = ConnectionType(type) == ConnectionType::SecondaryInstance &&
                           options.testFlag(SingleApplication::Mode::SecondaryNotification);
    if (isNew || announced)
        tellOwner([application = owner] { emit application->instanceStarted(); });
    if (client->bytesAvailable() > 0)
        slotDataAvailable(client, instanceId);
}

void SingleApplicationPrivate::slotDataAvailable(QLocalSocket *client, quint32 instanceId)
{
    const QByteArray piece = client->readAll();
    tellOwner([application = owner, instanceId, piece] {
        emit application->receivedMessage(instanceId, piece);
    });
    QByteArray &message = m_connectionMap[client].message;
    message += piece;
    if (message.size() > PathMessage::MaxSize)
        drop(client);
}

void SingleApplicationPrivate::forget(QLocalSocket *client)
{
    const ConnectionInfo info = m_connectionMap.take(client);
    client->deleteLater();
    if (info.message.isEmpty())
        return;
    tellOwner([application = owner, info] {
        emit application->receivedWholeMessage(info.instanceId, info.message);
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
