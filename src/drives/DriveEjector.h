#pragma once

#include <functional>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariant>

/**
 * Ejects a drive by the system's UDisks2 service, so that it can be taken out. All answers
 * come later; where there is no such service, or it does not know the drive, none comes.
 */
class DriveEjector : public QObject
{
    Q_OBJECT

public:
    enum Failure {
        Busy,   ///< a program has a file of it open
        Denied, ///< not for this user
        Failed
    };

    /** @param device what is mounted, "/dev/sdb1" for instance */
    explicit DriveEjector(const QString &device, QObject *parent = nullptr);

    /** Asks the service for the drive; available() is the answer. */
    void find();

    /** Unmounts the drive and turns it off, after available(). Answered by ejected() or failed().
     */
    void eject();

signals:
    void available();
    /** It can be taken out, or is out already. */
    void ejected();
    /** @param systemText the service's own words, for a failure of no known kind */
    void failed(DriveEjector::Failure failure, const QString &systemText);

private:
    using Answer = std::function<void(const QDBusMessage &reply)>;

    void call(const QString &path, const QString &method, const QVariantList &arguments,
              const Answer &answer);
    void getProperties(const QString &path, const QString &interface,
                       const std::function<void(const QVariantMap &properties)> &answer);
    void takeUnmounted(const QDBusMessage &reply);
    void turnOff(const QVariantMap &drive);

    QString m_device;
    QString m_blockPath;
    QString m_drivePath;
};
