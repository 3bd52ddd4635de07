#include "drives/DriveEjector.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>

namespace {

constexpr int AnswerTimeout = 60000; // milliseconds; what is still to be written takes its time

QString udisks(const char *name = "")
{
    return QStringLiteral("org.freedesktop.UDisks2") + QLatin1String(name);
}

bool isError(const QDBusMessage &reply, const char *name)
{
    return reply.errorName() == udisks(".Error.") + QLatin1String(name);
}

bool isGone(const QDBusMessage &reply)
{
    return isError(reply, "NotMounted") ||
           reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.UnknownObject") ||
           reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.UnknownMethod");
}

} // namespace

DriveEjector::DriveEjector(const QString &device, QObject *parent)
    : QObject(parent), m_device(device)
{
}

/** @param method with its interface */
void DriveEjector::call(const QString &path, const QString &method, const QVariantList &arguments,
                        const Answer &answer)
{
    const QString interface = method.section(QLatin1Char('.'), 0, -2);
    QDBusMessage message = QDBusMessage::createMethodCall(udisks(), path, interface,
                                                          method.section(QLatin1Char('.'), -1));
    message.setArguments(arguments);
    message.setInteractiveAuthorizationAllowed(true);
    auto *watcher = new QDBusPendingCallWatcher(
        QDBusConnection::systemBus().asyncCall(message, AnswerTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [answer, watcher] {
        watcher->deleteLater();
        answer(watcher->reply());
    });
}

void DriveEjector::getProperties(const QString &path, const QString &interface,
                                 const std::function<void(const QVariantMap &properties)> &answer)
{
    call(path, QStringLiteral("org.freedesktop.DBus.Properties.GetAll"), {interface},
         [answer](const QDBusMessage &reply) {
             answer(qdbus_cast<QVariantMap>(reply.arguments().value(0)));
         });
}

void DriveEjector::find()
{
    const QVariantMap device{{QStringLiteral("path"), m_device}};
    call(QStringLiteral("/org/freedesktop/UDisks2/Manager"), udisks(".Manager.ResolveDevice"),
         {device, QVariantMap()}, [this](const QDBusMessage &reply) {
             const auto blocks = qdbus_cast<QList<QDBusObjectPath>>(reply.arguments().value(0));
             if (reply.type() != QDBusMessage::ReplyMessage || blocks.isEmpty())
                 return;
             m_blockPath = blocks.first().path();
             getProperties(m_blockPath, udisks(".Block"), [this](const QVariantMap &block) {
                 m_drivePath = block.value(QStringLiteral("Drive")).value<QDBusObjectPath>().path();
                 // Without a drive behind it there is nothing to take out.
                 if (m_drivePath.size() > 1)
                     emit available();
             });
         });
}

void DriveEjector::eject()
{
    call(m_blockPath, udisks(".Filesystem.Unmount"), {QVariantMap()},
         [this](const QDBusMessage &reply) { takeUnmounted(reply); });
}

void DriveEjector::takeUnmounted(const QDBusMessage &reply)
{
    if (reply.type() == QDBusMessage::ReplyMessage)
        getProperties(m_drivePath, udisks(".Drive"),
                      [this](const QVariantMap &drive) { turnOff(drive); });
    else if (isGone(reply))
        emit ejected();
    else if (isError(reply, "DeviceBusy"))
        emit failed(Busy, QString());
    else if (reply.errorName().startsWith(udisks(".Error.NotAuthorized")))
        emit failed(Denied, QString());
    else
        emit failed(Failed, reply.errorMessage());
}

/** Unmounted it is safe; what follows is a courtesy, and its failure none of the user's. */
void DriveEjector::turnOff(const QVariantMap &drive)
{
    const auto done = [this](const QDBusMessage &) { emit ejected(); };
    if (drive.value(QStringLiteral("CanPowerOff")).toBool())
        call(m_drivePath, udisks(".Drive.PowerOff"), {QVariantMap()}, done);
    else if (drive.value(QStringLiteral("Ejectable")).toBool())
        call(m_drivePath, udisks(".Drive.Eject"), {QVariantMap()}, done);
    else
        emit ejected();
}
