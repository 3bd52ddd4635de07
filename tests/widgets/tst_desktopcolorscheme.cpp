#include "widgets/style/DesktopColorScheme.h"
#include "widgets/style/WidgetHelper.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

namespace {

const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString Group = QStringLiteral("org.freedesktop.appearance");
const QString Key = QStringLiteral("color-scheme");

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
        QDBusMessage signal =
            QDBusMessage::createSignal(Path, Interface, QStringLiteral("SettingChanged"));
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
    void initTestCase();
    void cleanupTestCase();
    void followsThePortal();

private:
    QProcess m_bus;
};

void tst_DesktopColorScheme::initTestCase()
{
    const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (daemon.isEmpty())
        QSKIP("dbus-daemon is not installed");
    m_bus.start(daemon, {QStringLiteral("--session"), QStringLiteral("--nofork"),
                         QStringLiteral("--print-address")});
    QVERIFY(m_bus.waitForReadyRead());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
}

void tst_DesktopColorScheme::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
    m_bus.terminate();
    m_bus.waitForFinished();
}

void tst_DesktopColorScheme::followsThePortal()
{
    QDBusConnection bus = QDBusConnection::connectToBus(
        QString::fromLocal8Bit(qgetenv("DBUS_SESSION_BUS_ADDRESS")), QStringLiteral("portal"));
    Portal portal;
    portal.scheme = 1;
    QVERIFY(bus.registerVirtualObject(Path, &portal));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));

    QVERIFY(!WidgetHelper::isDarkMode());
    DesktopColorScheme scheme(qApp);
    QVERIFY2(!WidgetHelper::isDarkMode(), "asking must not wait for the answer");
    QTRY_VERIFY(WidgetHelper::isDarkMode());

    portal.change(bus, QStringLiteral("contrast"), 0);
    portal.change(bus, Key, 2);
    QTRY_VERIFY(!WidgetHelper::isDarkMode());
    portal.change(bus, Key, 1);
    QTRY_VERIFY(WidgetHelper::isDarkMode());
}

QTEST_MAIN(tst_DesktopColorScheme)
#include "tst_desktopcolorscheme.moc"
