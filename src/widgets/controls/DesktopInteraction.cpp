#include "widgets/controls/DesktopInteraction.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#ifdef QT_DBUS_LIB
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#endif

namespace {

void openFolderOf(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

#ifdef QT_DBUS_LIB

constexpr int AnswerTimeoutMs = 5000;

void revealOverDBus(const QString &path)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolderOf(path);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QByteArray url = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded();
    call << QStringList{QString::fromLatin1(url)} << QString();

    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, AnswerTimeoutMs), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, qApp,
                     [path](QDBusPendingCallWatcher *finished) {
                         const QDBusPendingReply<> reply = *finished;
                         if (reply.isError())
                             openFolderOf(path);
                         finished->deleteLater();
                     });
}

#endif

} // namespace

void DesktopInteraction::revealInFinder(const QString &path)
{
#if defined(Q_OS_MACOS)
    QProcess::startDetached(QStringLiteral("open"), {QStringLiteral("-R"), path});
#elif defined(QT_DBUS_LIB)
    revealOverDBus(path);
#else
    openFolderOf(path);
#endif
}

QString DesktopInteraction::revealActionTextString()
{
#if defined(Q_OS_MACOS)
    return QCoreApplication::translate("DesktopInteraction", "Reveal in Finder");
#elif defined(Q_OS_WIN)
    return QCoreApplication::translate("DesktopInteraction", "Show in Explorer");
#else
    return QCoreApplication::translate("DesktopInteraction", "Show in file manager");
#endif
}
