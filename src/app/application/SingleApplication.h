#pragma once

#include "app/application/HooplineApplication.h"
#include "base/Clock.h"
#include "base/files/FileLock.h"

#include <memory>

class SingleApplicationPrivate;

/**
 * The application object of main: makes sure that one user runs one instance.
 * A second process tells the first that it was started, and what it was to open, and
 * ends inside the constructor with status 0.
 *
 * Two things tell who is the first: the record in shared memory with the local server,
 * and the lock of those who write the catalogue. Where they differ, the lock is right,
 * since it cannot outlive its holder. A process that finds the lock taken by another
 * instance that does not answer, or can have neither, says so and ends with status 1.
 */
class SingleApplication : public HooplineApplication
{
    Q_OBJECT

public:
    enum class Mode : quint32 {
        User = 1,                  ///< One instance per user, closed to other users.
        System = 2,                ///< One instance per computer; the absence of User.
        SecondaryNotification = 4, ///< A permitted second instance announces itself too.
        ExcludeAppVersion = 8,     ///< Any version counts as the same program.
        ExcludeAppPath = 16,       ///< A copy at any place counts as the same program.
    };
    Q_DECLARE_FLAGS(Options, Mode)

    /**
     * @param timeout for each step of the talk with the primary, in milliseconds; five times
     *        as long a primary may take to answer
     * @param clock by which a start that finds a half-written block waits
     */
    SingleApplication(int &argc, char **argv, bool allowSecondary, Options options, int timeout,
                      const std::shared_ptr<Clock> &clock = std::make_shared<Clock>());
    ~SingleApplication() override;

    /** The application as this class; null when there is none or another one. */
    static SingleApplication *instance();

    /**
     * What this process was asked to open, by absolute paths: the primary opens it. To be
     * set before the application object is made.
     */
    static void setPathsToOpen(const QStringList &paths);

    bool isPrimary() const;
    bool isSecondary() const;

    /** 0 on the primary, counted from 1 on secondaries. */
    quint32 instanceId() const;

    /** Process id of the primary; -1 when there is none. */
    qint64 primaryPid() const;
    QString primaryUser() const;
    QString currentUser() const;

    /**
     * The lock of those who write the catalogue, which the primary takes when it is free.
     * While a scan holds it the primary has to wait for it before it loads the catalogue.
     */
    FileLock &catalogueLock() { return m_lock; }

    /**
     * Sends raw bytes to the primary and waits up to @p timeout milliseconds
     * for each step. False when that failed, and always on the primary.
     */
    bool sendMessage(const QByteArray &message, int timeout = 100);

signals:
    /** On the primary: another process was started. */
    void instanceStarted();
    /** Bytes as they come in; a message may come in pieces. */
    void receivedMessage(quint32 instanceId, QByteArray message);
    /** All that a process has sent which is gone now. */
    void receivedWholeMessage(quint32 instanceId, QByteArray message);

private:
    void joinOrEnd(bool allowSecondary, int timeout, Clock &clock);
    void waitWhileTorn(Clock &clock, Clock::Milliseconds since);
    void joinAsSecondary(int timeout);
    bool mayLead();
    void openAll(const QStringList &paths);
    [[noreturn]] void endWith(int status);
    [[noreturn]] void endForLackOfAnAnswer();
    [[noreturn]] void endTelling(const QString &text, const QString &advice);

    FileLock m_lock;
    std::unique_ptr<SingleApplicationPrivate> m_private;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(SingleApplication::Options)
