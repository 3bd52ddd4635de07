#pragma once

#include "app/application/SingleApplication.h"
#include "base/InstanceBlock.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QMap>
#include <QSharedMemory>

/**
 * The guard behind SingleApplication: the shared-memory block, the primary's
 * local server and the talk between the processes. What a client sends is not
 * trusted: one that is too slow, too long or wrong is dropped.
 */
class SingleApplicationPrivate : public QObject
{
    Q_OBJECT

public:
    /** As sent on the wire. */
    enum class ConnectionType : quint8 {
        Invalid = 0,
        NewInstance = 1,
        SecondaryInstance = 2,
        Reconnect = 3,
    };

    /** How far a client has come. */
    enum class Stage : quint8 { Header = 0, Body = 1, Connected = 2 };

    /** What the block says. */
    enum class Record {
        None,    ///< there is no primary; also where there is no block
        Primary, ///< there is one
        Torn     ///< its writer died between its stores
    };

    /** What became of an announcement. */
    enum class Answer {
        Unknown,     ///< none was made yet
        NobodyThere, ///< nobody listens, or whoever did has gone meanwhile
        Silent,      ///< somebody listens, but did not answer in time
        Heard        ///< the primary is alive and knows
    };

    struct ConnectionInfo
    {
        quint64 msgLen = 0;
        quint32 instanceId = 0;
        Stage stage = Stage::Header;
        QByteArray message; ///< what came behind the init message
    };

    /** Longest body of an init message, in bytes; ours is 55 bytes long. */
    static constexpr quint64 MaxInitMessageLength = 1024;
    /** A client that has not introduced itself by then is dropped; milliseconds. */
    static constexpr int InitMessageTimeout = 3000;

    SingleApplicationPrivate(SingleApplication *owner, SingleApplication::Options options);
    /** Gives up the role in the block and the server. */
    ~SingleApplicationPrivate() override;

    /**
     * Waits, though not for ever, until no other process is coming or going. Where the
     * temporary folder takes no lock file there is nothing to wait for.
     */
    void enterStart();

    /** Makes or joins the block; false when neither is possible. */
    bool openMemoryBlock();

    /** The block; to be touched only while it is locked. Null where there is none. */
    InstanceBlock *block() const;
    /** These do nothing where there is no block. */
    void lockBlock();
    void unlockBlock();

    /** To be asked while the block is locked. */
    Record record() const;
    /** Whether the process that the block names as primary is there. */
    bool recordedPrimaryLives() const;

    /** To be called while the block is locked. */
    void startPrimary();
    /** Announces this process; returns silently when the primary can't be reached. */
    void connectToPrimary(int timeout, ConnectionType type);
    /**
     * Announces this process with a message and waits for the primary's answer.
     * @param timeout for each step, in milliseconds
     */
    Answer announce(const QByteArray &message, int timeout, std::chrono::milliseconds patience);

    /** The init message of a client, header included. */
    QByteArray initMessage(ConnectionType type) const;

    static QString getUsername();
    static QString genBlockServerName(SingleApplication::Options options);

    SingleApplication *const owner;
    std::unique_ptr<QSharedMemory> memory;
    std::unique_ptr<QLocalSocket> socket;
    std::unique_ptr<QLocalServer> server;
    quint32 instanceNumber = quint32(-1);
    const SingleApplication::Options options;
    const QString blockServerName;
    /** Lets one process at a time come or go: the lock of a QSharedMemory that is being made or
     * removed does not hold. */
    FileLock startLock;

private:
    void listen();
    void slotConnectionEstablished();
    void readFrom(QLocalSocket *client);
    void readInitMessageHeader(QLocalSocket *client);
    void readInitMessageBody(QLocalSocket *client);
    void slotDataAvailable(QLocalSocket *client, quint32 instanceId);
    void forget(QLocalSocket *client);
    void tellOwner(const std::function<void()> &signal);
    void drop(QLocalSocket *client);

    QMap<QLocalSocket *, ConnectionInfo> m_connectionMap;
};
