#include "drives/DriveInfo.h"
#include "support/PrivateBus.h"
#include "support/Rows.h"
#include "ui/NoticeBar.h"
#include "ui/NoticeRow.h"
#include "ui/TransferNotice.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QPushButton>
#include <QtTest>

Q_DECLARE_METATYPE(TransferResult)

namespace {

/** The system's service for drives, which knows one stick and remembers what was asked of it. */
class Drives : public QDBusVirtualObject
{
public:
    QString introspect(const QString &) const override { return QString(); }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        asked += message.member();
        if (message.member() == unmountAnswer.first)
            return bus.send(message.createErrorReply(unmountAnswer.second, "so it is"));
        return bus.send(message.createReply(answer(message)));
    }

    QStringList asked;
    QString device = "/dev/sdx1";
    bool hasDrive = true;
    QVariantMap drive;
    QPair<QString, QString> unmountAnswer; ///< the method that fails, and by which error

private:
    QVariantList answer(const QDBusMessage &message) const
    {
        const QVariantList arguments = message.arguments();
        if (message.member() == QLatin1String("ResolveDevice")) {
            const auto wanted = qdbus_cast<QVariantMap>(arguments.value(0));
            QList<QDBusObjectPath> blocks;
            if (wanted.value("path") == device)
                blocks.append(QDBusObjectPath("/block"));
            return {QVariant::fromValue(blocks)};
        }
        if (message.member() != QLatin1String("GetAll"))
            return {};
        if (message.path() == QLatin1String("/drive"))
            return {drive};
        const QString path = hasDrive ? QStringLiteral("/drive") : QStringLiteral("/");
        return {QVariantMap{{"Drive", QVariant::fromValue(QDBusObjectPath(path))}}};
    }
};

} // namespace

class tst_transfernotice : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!m_bus.start("system"))
            QSKIP("there is no dbus-daemon here");
    }

    void init()
    {
        m_drives = std::make_unique<Drives>();
        m_bar = std::make_unique<NoticeBar>();
        m_notice = std::make_unique<TransferNotice>(m_bar.get(), nullptr);
    }

    void cleanup()
    {
        m_notice.reset();
        QDBusConnection::disconnectFromBus("drives");
    }

    void tellsWhatWasCopied_data()
    {
        const Rows<TransferResult, QString> row("result", "told");
        TransferResult result;
        result.total = result.copied = 3;
        row("all", result, "3 file(s) copied to /media/stick.");
        result.replacedByLater = 1;
        row("one name twice", result,
            "3 file(s) copied to /media/stick. 1 of them gave way to "
            "a later one of the same name.");
        result.replacedByLater = 0;
        result.copied = 2;
        result.reason = TransferResult::NoSpace;
        row("some", result, "2 of 3 files were copied to /media/stick.");
        result.copied = 0;
        row("none", result, "");
    }

    void tellsWhatWasCopied()
    {
        QFETCH(TransferResult, result);
        tellOfTwoFiles();
        DriveInfo drive;
        drive.rootPath = "/media/stick";
        m_notice->tell(result, drive);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QTEST(text(), "told");
    }

    void hidesEjectWhereItCannotBe_data()
    {
        const Rows<bool, QString, bool> row("service", "device", "hasDrive");
        row("no service", false, "/dev/sdx1", true);
        row("unknown device", true, "/dev/sdy1", true);
        row("no drive behind it", true, "/dev/sdx1", false);
    }

    void hidesEjectWhereItCannotBe()
    {
        QFETCH(bool, service);
        QFETCH(QString, device);
        QFETCH(bool, hasDrive);
        m_drives->device = device;
        m_drives->hasDrive = hasDrive;
        if (service)
            startService();
        tellOfTwoFiles();
        // Whatever was asked of the bus before this is answered before it.
        const int questions = device == QLatin1String("/dev/sdx1") ? 2 : 1;
        if (service)
            QTRY_COMPARE(m_drives->asked.size(), questions);
        QDBusMessage ping = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/",
                                                           "org.freedesktop.DBus", "GetId");
        QDBusConnection::systemBus().call(ping);
        QCoreApplication::processEvents();
        QVERIFY(!ejectButton());
        QCOMPARE(text(), "2 file(s) copied to STICK %1.");
    }

    void ejects_data()
    {
        const Rows<QVariantMap, QString> row("drive", "last");
        const QString powerOff = "CanPowerOff";
        const QString ejectable = "Ejectable";
        row("power off", {{powerOff, true}, {ejectable, true}}, "PowerOff");
        row("eject", {{powerOff, false}, {ejectable, true}}, "Eject");
        row("neither", {}, "GetAll");
    }

    void ejects()
    {
        QFETCH(QVariantMap, drive);
        m_drives->drive = drive;
        startService();
        tellOfTwoFiles();
        QTRY_VERIFY(ejectButton());
        ejectButton()->click();
        QTRY_COMPARE(text(), "STICK %1 can be taken out now.");
        QVERIFY(m_drives->asked.contains("Unmount"));
        QTEST(m_drives->asked.last(), "last");
        QTRY_VERIFY(!ejectButton());
    }

    void tellsWhyItCannotEject_data()
    {
        const Rows<QString, QString, QString> row("method", "error", "told");
        row("busy", "Unmount", "org.freedesktop.UDisks2.Error.DeviceBusy",
            "STICK %1 cannot be ejected: another program still uses it.");
        row("denied", "Unmount", "org.freedesktop.UDisks2.Error.NotAuthorizedDismissed",
            "STICK %1 cannot be ejected: this needs more rights than you have.");
        row("else", "Unmount", "org.freedesktop.UDisks2.Error.Failed",
            "STICK %1 cannot be ejected: so it is");
        row("pulled since", "Unmount", "org.freedesktop.DBus.Error.UnknownObject",
            "STICK %1 can be taken out now.");
        row("unmounted since", "Unmount", "org.freedesktop.UDisks2.Error.NotMounted",
            "STICK %1 can be taken out now.");
        row("not turned off", "PowerOff", "org.freedesktop.UDisks2.Error.Failed",
            "STICK %1 can be taken out now.");
    }

    void tellsWhyItCannotEject()
    {
        QFETCH(QString, method);
        QFETCH(QString, error);
        QFETCH(QString, told);
        m_drives->unmountAnswer = {method, error};
        m_drives->drive = {{"CanPowerOff", true}};
        startService();
        tellOfTwoFiles();
        QTRY_VERIFY(ejectButton());
        ejectButton()->click();
        QTRY_COMPARE(text(), told);
        // What may pass can be tried again.
        QTRY_COMPARE(ejectButton() != nullptr, told.contains("cannot"));
    }

    void leavesAClosedNoticeClosed()
    {
        startService();
        tellOfTwoFiles();
        m_bar->withdraw("transfer");
        QTRY_COMPARE(m_drives->asked.size(), 2);
        QTest::qWait(20);
        QCOMPARE(text(), QString());
    }

private:
    void startService()
    {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, "drives");
        QVERIFY(bus.registerVirtualObject("/", m_drives.get(), QDBusConnection::SubPath));
        QVERIFY(bus.registerService("org.freedesktop.UDisks2"));
    }

    void tellOfTwoFiles()
    {
        TransferResult result;
        result.total = result.copied = 2;
        DriveInfo drive;
        drive.name = "STICK %1";
        drive.mount.source = "/dev/sdx1";
        m_notice->tell(result, drive);
    }

    QPushButton *ejectButton() const { return m_bar->findChild<QPushButton *>(); }
    QString text() const
    {
        const auto *row = m_bar->findChild<NoticeRow *>();
        return row && m_bar->isTelling("transfer") ? row->text() : QString();
    }

    PrivateBus m_bus;
    std::unique_ptr<Drives> m_drives;
    std::unique_ptr<NoticeBar> m_bar;
    std::unique_ptr<TransferNotice> m_notice;
};

QTEST_MAIN(tst_transfernotice)
#include "tst_transfernotice.moc"
