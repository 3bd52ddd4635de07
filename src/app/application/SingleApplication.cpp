#include "app/application/SingleApplication.h"

#include "app/application/PathMessage.h"
#include "app/application/SingleApplicationPrivate.h"
#include "base/files/PrivateAccess.h"
#include "base/GlobalSettings.h"
#include "widgets/controls/GMessageBox.h"

#include <cstdio>
#include <cstdlib>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStandardPaths>

namespace {

constexpr std::chrono::milliseconds InconsistencyLimit(5001);
constexpr std::chrono::milliseconds RetryInterval(100);
constexpr quint64 ShortestPause = 8; // seconds
constexpr quint64 PauseSpread = 10;  // seconds
constexpr int TimeoutsToAnswer = 5;
const QString ProgramName = QStringLiteral("hoopline-organizer");

std::chrono::seconds randomPause()
{
    const quint64 random = QRandomGenerator::global()->generate();
    return std::chrono::seconds(ShortestPause + ((random * PauseSpread) >> 32));
}

QStringList &pathsToOpen()
{
    static QStringList paths;
    return paths;
}

QString lockFilePath()
{
    QString path = GlobalSettings().lockFilePath();
    const QString folder = QFileInfo(path).path();
    // A folder elsewhere that is missing may lie on a drive that will come back.
    if (folder == QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
        PrivateAccess::makeFolder(folder);
    return path;
}

} // namespace

SingleApplication::SingleApplication(int &argc, char **argv, bool allowSecondary, Options options,
                                     int timeout, const std::shared_ptr<Clock> &clock)
    : HooplineApplication(argc, argv), m_lock(lockFilePath(), ProgramName),
      m_private(std::make_unique<SingleApplicationPrivate>(this, options))
{
    m_private->enterStart();
    if (!m_private->openMemoryBlock()) {
        qCritical("SingleApplication: Unable to attach to shared memory block.");
        qCritical("%s", qPrintable(m_private->memory->errorString()));
        m_private->memory.reset();
        if (m_lock.tryLock() == FileLock::Unavailable)
            endTelling(tr("%1 cannot start.").arg(QCoreApplication::applicationName()),
                       tr("It can write neither to the folder for temporary files nor to that of "
                          "its own data: %1")
                           .arg(QDir::toNativeSeparators(GlobalSettings().applicationDataPath())));
    }
    joinOrEnd(allowSecondary, timeout, *clock);
    m_private->startLock.unlock();
    connect(this, &SingleApplication::receivedWholeMessage, this,
            [this](quint32, const QByteArray &message) { openAll(PathMessage::decode(message)); });
    if (isPrimary())
        openAll(pathsToOpen());
}

SingleApplication::~SingleApplication() = default;

SingleApplication *SingleApplication::instance()
{
    return qobject_cast<SingleApplication *>(QCoreApplication::instance());
}

void SingleApplication::setPathsToOpen(const QStringList &paths)
{
    pathsToOpen() = paths;
}

void SingleApplication::joinOrEnd(bool allowSecondary, int timeout, Clock &clock)
{
    using Record = SingleApplicationPrivate::Record;
    using Answer = SingleApplicationPrivate::Answer;
    const Clock::Milliseconds started = clock.steady();
    const Clock::Milliseconds patience(timeout * TimeoutsToAnswer);
    Answer answer = Answer::Unknown;
    for (;;) {
        m_private->lockBlock();
        const Record record = m_private->record();
        if (record == Record::Torn) {
            waitWhileTorn(clock, started);
            continue;
        }
        if (record == Record::Primary && allowSecondary) {
            joinAsSecondary(timeout);
            return;
        }
        // Whoever is recorded but listens nowhere may have died without a word.
        if ((record == Record::None || answer == Answer::NobodyThere) && mayLead()) {
            m_private->startPrimary();
            m_private->unlockBlock();
            return;
        }
        m_private->unlockBlock();
        // A primary that ends must not have to wait for this process, which waits for it.
        m_private->startLock.unlock();
        answer = m_private->announce(PathMessage::encode(pathsToOpen()), timeout, patience);
        if (answer == Answer::Heard)
            endWith(EXIT_SUCCESS);
        // One of an earlier version has no lock and does not answer, but hears.
        if (answer == Answer::Silent && m_lock.tryLock() != FileLock::HeldByOther)
            endWith(EXIT_SUCCESS);
        if (answer == Answer::Silent || clock.steady() - started >= patience)
            endForLackOfAnAnswer();
        clock.sleep(RetryInterval);
        m_private->enterStart();
    }
}

void SingleApplication::waitWhileTorn(Clock &clock, Clock::Milliseconds since)
{
    if (clock.steady() - since >= InconsistencyLimit) {
        qWarning("SingleApplication: Shared memory block has been in an inconsistent state "
                 "from more than 5s. Assuming primary instance failure.");
        m_private->block()->initialize();
    }
    m_private->unlockBlock();
    m_private->startLock.unlock();
    clock.sleep(randomPause());
    m_private->enterStart();
}

void SingleApplication::joinAsSecondary(int timeout)
{
    InstanceBlock *block = m_private->block();
    block->secondary += 1;
    block->seal();
    m_private->instanceNumber = block->secondary;
    if (m_private->options.testFlag(Mode::SecondaryNotification))
        m_private->connectToPrimary(timeout,
                                    SingleApplicationPrivate::ConnectionType::SecondaryInstance);
    m_private->unlockBlock();
}

bool SingleApplication::mayLead()
{
    switch (m_lock.tryLock()) {
    case FileLock::Held:
        return true;
    case FileLock::HeldByOther:
        // The window waits for the end of a scan.
        return m_lock.holder().program != ProgramName;
    case FileLock::Unavailable:
        break;
    }
    return !m_private->recordedPrimaryLives();
}

void SingleApplication::openAll(const QStringList &paths)
{
    for (const QString &path : paths)
        openFile(path);
}

void SingleApplication::endWith(int status)
{
    m_private.reset();
    std::exit(status);
}

void SingleApplication::endForLackOfAnAnswer()
{
    const qint64 pid = m_lock.holder().pid;
    const QString text =
        tr("%1 is already running, but does not answer.").arg(QCoreApplication::applicationName());
    const QString advice =
        pid > 0 ? tr("It may be busy: wait a little and start again. If that does not help, end "
                     "the process %1 first.")
                      .arg(pid)
                : tr("It may be busy: wait a little and start again.");
    endTelling(text, advice);
}

void SingleApplication::endTelling(const QString &text, const QString &advice)
{
    std::fputs(qPrintable(text + QLatin1Char('\n') + advice + QLatin1Char('\n')), stderr);
    cancelLaunch();
    GMessageBox(GMessageBox::Warning, nullptr, text, advice).exec();
    endWith(EXIT_FAILURE);
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
    m_private->lockBlock();
    const InstanceBlock *block = m_private->block();
    const qint64 pid = block ? block->primaryPid : m_lock.holder().pid;
    m_private->unlockBlock();
    return pid;
}

QString SingleApplication::primaryUser() const
{
    m_private->lockBlock();
    const InstanceBlock *block = m_private->block();
    QString user =
        block ? QString::fromUtf8(block->primaryUser,
                                  int(qstrnlen(block->primaryUser, sizeof(block->primaryUser))))
              : currentUser();
    m_private->unlockBlock();
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
