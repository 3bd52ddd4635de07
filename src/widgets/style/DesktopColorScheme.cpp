#include "widgets/style/DesktopColorScheme.h"

#include "widgets/style/Palettes.h"
#include "widgets/style/WidgetHelper.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {

const char *const Service = "org.freedesktop.portal.Desktop";
const char *const Path = "/org/freedesktop/portal/desktop";
const char *const Interface = "org.freedesktop.portal.Settings";
const char *const Group = "org.freedesktop.appearance";
const char *const Key = "color-scheme";

constexpr uint PrefersDark = 1;

/** The portal wraps the value in one or two variants, by its version. */
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

DesktopColorScheme::DesktopColorScheme(QObject *parent) : QObject(parent)
{
    // A theme that is dark by itself has told the desktop's wish already, and better.
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (WidgetHelper::isDarkMode() || !bus.isConnected())
        return;
    bus.connect(QLatin1String(Service), QLatin1String(Path), QLatin1String(Interface),
                QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask();
}

void DesktopColorScheme::ask()
{
    QDBusMessage read =
        QDBusMessage::createMethodCall(QLatin1String(Service), QLatin1String(Path),
                                       QLatin1String(Interface), QStringLiteral("Read"));
    read << QString::fromLatin1(Group) << QString::fromLatin1(Key);
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        if (!reply.isError())
            apply(reply.value().variant());
    });
}

void DesktopColorScheme::settingChanged(const QString &group, const QString &key,
                                        const QDBusVariant &value)
{
    if (group == QLatin1String(Group) && key == QLatin1String(Key))
        apply(value.variant());
}

void DesktopColorScheme::apply(const QVariant &scheme)
{
    const bool dark = unwrapped(scheme).toUInt() == PrefersDark;
    if (dark != WidgetHelper::isDarkMode())
        QApplication::setPalette(dark ? Palettes::dark() : Palettes::light());
}
