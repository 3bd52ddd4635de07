#pragma once

#include "app/application/HooplineApplication.h"
#include "base/Clock.h"

#include <memory>

class SingleApplicationPrivate;

/**
 * The application object of main: makes sure that one user runs one instance.
 * A second process tells the first that it was started and ends inside the
 * constructor with status 0; one that can't take part in the guard ends there
 * with status 1.
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
     * @param timeout for the talk with the primary, in milliseconds
     * @param clock by which a start that finds a half-written block waits
     */
    SingleApplication(int &argc, char **argv, bool allowSecondary, Options options, int timeout,
                      const std::shared_ptr<Clock> &clock = std::make_shared<Clock>());
    ~SingleApplication() override;

    bool isPrimary() const;
    bool isSecondary() const;

    /** 0 on the primary, counted from 1 on secondaries. */
    quint32 instanceId() const;

    /** Process id of the primary; -1 when there is none. */
    qint64 primaryPid() const;
    QString primaryUser() const;
    QString currentUser() const;

    /**
     * Sends raw bytes to the primary and waits up to @p timeout milliseconds
     * for each step. False when that failed, and always on the primary.
     */
    bool sendMessage(const QByteArray &message, int timeout = 100);

signals:
    /** On the primary: another process was started. */
    void instanceStarted();
    void receivedMessage(quint32 instanceId, QByteArray message);

private:
    void joinOrEnd(bool allowSecondary, int timeout, Clock &clock);
    void endWith(int status);

    std::unique_ptr<SingleApplicationPrivate> m_private;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(SingleApplication::Options)
