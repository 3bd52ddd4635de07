#include "support/PrivateBus.h"
#include "widgets/style/DesktopColorScheme.h"
#include "widgets/style/WidgetHelper.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QtTest>

namespace {

const QString Path = "/org/freedesktop/portal/desktop";
const QString Interface = "org.freedesktop.portal.Settings";
const QString Group = "org.freedesktop.appearance";
const QString Key = "color-scheme";

/** A desktop portal that knows one setting. */
class Portal : public QDBusVirtualObject
{
public:
    QString introspect(const QString &) const override { return QString(); }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (message.member() != QLatin1String("Read"))
            return false;
        const QVariant value = QVariant::fromValue(QDBusVariant(scheme));
        return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(value))));
    }

    void change(const QDBusConnection &bus, const QString &key, uint value)
    {
        scheme = value;
        QDBusMessage signal = QDBusMessage::createSignal(Path, Interface, "SettingChanged");
        signal << Group << key << QVariant::fromValue(QDBusVariant(value));
        bus.send(signal);
    }

    uint scheme = 0;
};

} // namespace

class tst_DesktopColorScheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!m_bus.start("session"))
            QSKIP("there is no dbus-daemon here");
    }

    void cleanupTestCase() { QDBusConnection::disconnectFromBus("portal"); }

    void followsThePortal()
    {
        QDBusConnection bus = QDBusConnection::connectToBus(
            QString::fromLocal8Bit(qgetenv("DBUS_SESSION_BUS_ADDRESS")), "portal");
        Portal portal;
        portal.scheme = 1;
        QVERIFY(bus.registerVirtualObject(Path, &portal));
        QVERIFY(bus.registerService("org.freedesktop.portal.Desktop"));

        QVERIFY(!WidgetHelper::isDarkMode());
        DesktopColorScheme scheme(qApp);
        QVERIFY2(!WidgetHelper::isDarkMode(), "asking must not wait for the answer");
        QTRY_VERIFY(WidgetHelper::isDarkMode());

        portal.change(bus, "contrast", 0);
        portal.change(bus, Key, 2);
        QTRY_VERIFY(!WidgetHelper::isDarkMode());
        portal.change(bus, Key, 1);
        QTRY_VERIFY(WidgetHelper::isDarkMode());
    }

private:
    PrivateBus m_bus;
};

QTEST_MAIN(tst_DesktopColorScheme)
#include "tst_desktopcolorscheme.moc"
