#include "app/application/SingleApplicationPrivate.h"

#include <cstdlib>
#include <QRandomGenerator>

namespace {

constexpr std::chrono::milliseconds InconsistencyLimit(5001);
constexpr quint64 ShortestPause = 8; // seconds
constexpr quint64 PauseSpread = 10;  // seconds

std::chrono::seconds randomPause()
{
    const quint64 random = QRandomGenerator::global()->generate();
    return std::chrono::seconds(ShortestPause + ((random * PauseSpread) >> 32));
}

} // namespace

SingleApplication::SingleApplication(int &argc, char **argv, bool allowSecondary, Options options,
                                     int timeout, const std::shared_ptr<Clock> &clock)
    : HooplineApplication(argc, argv),
      m_private(std::make_unique<SingleApplicationPrivate>(this, options))
{
    m_private->enterStart();
    if (!m_private->openMemoryBlock()) {
        qCritical("SingleApplication: Unable to attach to shared memory block.");
        qCritical("%s", qPrintable(m_private->memory->errorString()));
        endWith(EXIT_FAILURE);
    }
    joinOrEnd(allowSecondary, timeout, *clock);
    m_private->startLock.unlock();
}

SingleApplication::~SingleApplication() = default;

void SingleApplication::joinOrEnd(bool allowSecondary, int timeout, Clock &clock)
{
    using ConnectionType = SingleApplicationPrivate::ConnectionType;
    const Clock::Milliseconds started = clock.steady();
    for (;;) {
        m_private->memory->lock();
        InstanceBlock *block = m_private->block();
        if (block->isIntact() && !block->primary) {
            m_private->startPrimary();
            m_private->memory->unlock();
            return;
        }
        if (block->isIntact() && !allowSecondary) {
            m_private->memory->unlock();
            m_private->connectToPrimary(timeout, ConnectionType::NewInstance);
            endWith(EXIT_SUCCESS);
        }
        if (block->isIntact()) {
            block->secondary += 1;
            block->seal();
            m_private->instanceNumber = block->secondary;
            if (m_private->options.testFlag(Mode::SecondaryNotification))
                m_private->connectToPrimary(timeout, ConnectionType::SecondaryInstance);
            m_private->memory->unlock();
            return;
        }
        if (clock.steady() - started >= InconsistencyLimit) {
            qWarning("SingleApplication: Shared memory block has been in an inconsistent state "
                     "from more than 5s. Assuming primary instance failure.");
            block->initialize();
        }
        m_private->memory->unlock();
        m_private->startLock.unlock();
        clock.sleep(randomPause());
        m_private->enterStart();
    }
}

void SingleApplication::endWith(int status)
{
    m_private.reset();
    std::exit(status);
}

bool SingleApplication::isPrimary() const
{
    return m_private->server != nullptr;
}

bool SingleApplication::isSecondary() const
{
    return !isPrimary();
}

quint32 SingleApplication::instanceId() const
{
    return m_private->instanceNumber;
}

qint64 SingleApplication::primaryPid() const
{
    m_private->memory->lock();
    const qint64 pid = m_private->block()->primaryPid;
    m_private->memory->unlock();
    return pid;
}

QString SingleApplication::primaryUser() const
{
    m_private->memory->lock();
    const InstanceBlock *block = m_private->block();
    QString user = QString::fromUtf8(block->primaryUser,
                                     int(qstrnlen(block->primaryUser, sizeof(block->primaryUser))));
    m_private->memory->unlock();
    return user;
}

QString SingleApplication::currentUser() const
{
    return SingleApplicationPrivate::getUsername();
}

bool SingleApplication::sendMessage(const QByteArray &message, int timeout)
{
    if (isPrimary())
        return false;
    m_private->connectToPrimary(timeout, SingleApplicationPrivate::ConnectionType::Reconnect);
    m_private->socket->write(message);
    const bool written = m_private->socket->waitForBytesWritten(timeout);
    m_private->socket->flush();
    return written;
}
