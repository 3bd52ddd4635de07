#include "drives/DriveInfo.h"
#include "ui/NoticeBar.h"
#include "ui/NoticeRow.h"
#include "ui/TransferNotice.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
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
            return bus.send(
                message.createErrorReply(unmountAnswer.second, QStringLiteral("so it is")));
        return bus.send(message.createReply(answer(message)));
    }

    QStringList asked;
    QString device = QStringLiteral("/dev/sdx1");
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
            if (wanted.value(QStringLiteral("path")) == device)
                blocks.append(QDBusObjectPath(QStringLiteral("/block")));
            return {QVariant::fromValue(blocks)};
        }
        if (message.member() != QLatin1String("GetAll"))
            return {};
        if (message.path() == QLatin1String("/drive"))
            return {drive};
        const QString path = hasDrive ? QStringLiteral("/drive") : QStringLiteral("/");
        return {QVariantMap{{QStringLiteral("Drive"), QVariant::fromValue(QDBusObjectPath(path))}}};
    }
};

} // namespace

class tst_transfernotice : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void tellsWhatWasCopied_data();
    void tellsWhatWasCopied();
    void hidesEjectWhereItCannotBe_data();
    void hidesEjectWhereItCannotBe();
    void ejects_data();
    void ejects();
    void tellsWhyItCannotEject_data();
    void tellsWhyItCannotEject();
    void leavesAClosedNoticeClosed();

private:
    void startService();
    void tellOfTwoFiles();
    QPushButton *ejectButton() const { return m_bar->findChild<QPushButton *>(); }
    QString text() const
    {
        const auto *row = m_bar->findChild<NoticeRow *>();
        return row && m_bar->isTelling(QStringLiteral("transfer")) ? row->text() : QString();
    }

    QProcess m_bus;
    QTemporaryDir m_directory;
    std::unique_ptr<Drives> m_drives;
    std::unique_ptr<NoticeBar> m_bar;
    std::unique_ptr<TransferNotice> m_notice;
};

void tst_transfernotice::initTestCase()
{
    const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (daemon.isEmpty())
        QSKIP("there is no dbus-daemon here");
    // A bus that starts no service by itself, so that no installed one answers.
    QFile file(m_directory.filePath(QStringLiteral("bus.conf")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<busconfig><type>system</type><listen>unix:tmpdir=/tmp</listen>"
               "<policy context='default'><allow send_destination='*' eavesdrop='true'/>"
               "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>");
    file.close();
    m_bus.start(daemon, {QStringLiteral("--config-file=") + file.fileName(),
                         QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    QVERIFY(m_bus.waitForReadyRead());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_bus.readLine().trimmed());
}

void tst_transfernotice::cleanupTestCase()
{
    m_bus.kill();
    m_bus.waitForFinished();
}

void tst_transfernotice::init()
{
    m_drives = std::make_unique<Drives>();
    m_bar = std::make_unique<NoticeBar>();
    m_notice = std::make_unique<TransferNotice>(m_bar.get(), nullptr);
}

void tst_transfernotice::cleanup()
{
    m_notice.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("drives"));
}

void tst_transfernotice::startService()
{
    QDBusConnection bus =
        QDBusConnection::connectToBus(QDBusConnection::SystemBus, QStringLiteral("drives"));
    QVERIFY(
        bus.registerVirtualObject(QStringLiteral("/"), m_drives.get(), QDBusConnection::SubPath));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.UDisks2")));
}

void tst_transfernotice::tellOfTwoFiles()
{
    TransferResult result;
    result.total = result.copied = 2;
    DriveInfo drive;
    drive.name = QStringLiteral("STICK %1");
    drive.mount.source = QStringLiteral("/dev/sdx1");
    m_notice->tell(result, drive);
}

void tst_transfernotice::tellsWhatWasCopied_data()
{
    QTest::addColumn<TransferResult>("result");
    QTest::addColumn<QString>("told");
    TransferResult result;
    result.total = result.copied = 3;
    QTest::newRow("all") << result << "3 file(s) copied to /media/stick.";
    result.replacedByLater = 1;
    QTest::newRow("one name twice") << result
                                    << "3 file(s) copied to /media/stick. 1 of them gave way to "
                                       "a later one of the same name.";
    result.replacedByLater = 0;
    result.copied = 2;
    result.reason = TransferResult::NoSpace;
    QTest::newRow("some") << result << "2 of 3 files were copied to /media/stick.";
    result.copied = 0;
    QTest::newRow("none") << result << "";
}

void tst_transfernotice::tellsWhatWasCopied()
{
    QFETCH(TransferResult, result);
    tellOfTwoFiles();
    DriveInfo drive;
    drive.rootPath = QStringLiteral("/media/stick");
    m_notice->tell(result, drive);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTEST(text(), "told");
}

void tst_transfernotice::hidesEjectWhereItCannotBe_data()
{
    QTest::addColumn<bool>("service");
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("hasDrive");
    QTest::newRow("no service") << false << "/dev/sdx1" << true;
    QTest::newRow("unknown device") << true << "/dev/sdy1" << true;
    QTest::newRow("no drive behind it") << true << "/dev/sdx1" << false;
}

void tst_transfernotice::hidesEjectWhereItCannotBe()
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
    QDBusMessage ping = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId"));
    QDBusConnection::systemBus().call(ping);
    QCoreApplication::processEvents();
    QVERIFY(!ejectButton());
    QCOMPARE(text(), QStringLiteral("2 file(s) copied to STICK %1."));
}

void tst_transfernotice::ejects_data()
{
    QTest::addColumn<QVariantMap>("drive");
    QTest::addColumn<QString>("last");
    const QString powerOff = QStringLiteral("CanPowerOff");
    const QString ejectable = QStringLiteral("Ejectable");
    QTest::newRow("power off") << QVariantMap{{powerOff, true}, {ejectable, true}} << "PowerOff";
    QTest::newRow("eject") << QVariantMap{{powerOff, false}, {ejectable, true}} << "Eject";
    QTest::newRow("neither") << QVariantMap() << "GetAll";
}

void tst_transfernotice::ejects()
{
    QFETCH(QVariantMap, drive);
    m_drives->drive = drive;
    startService();
    tellOfTwoFiles();
    QTRY_VERIFY(ejectButton());
    ejectButton()->click();
    QTRY_COMPARE(text(), QStringLiteral("STICK %1 can be taken out now."));
    QVERIFY(m_drives->asked.contains(QStringLiteral("Unmount")));
    QTEST(m_drives->asked.last(), "last");
    QTRY_VERIFY(!ejectButton());
}

void tst_transfernotice::tellsWhyItCannotEject_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("told");
    QTest::newRow("busy") << "Unmount"
                          << "org.freedesktop.UDisks2.Error.DeviceBusy"
                          << "STICK %1 cannot be ejected: another program still uses it.";
    QTest::newRow("denied") << "Unmount"
                            << "org.freedesktop.UDisks2.Error.NotAuthorizedDismissed"
                            << "STICK %1 cannot be ejected: this needs more rights than you have.";
    QTest::newRow("else") << "Unmount"
                          << "org.freedesktop.UDisks2.Error.Failed"
                          << "STICK %1 cannot be ejected: so it is";
    QTest::newRow("pulled since") << "Unmount"
                                  << "org.freedesktop.DBus.Error.UnknownObject"
                                  << "STICK %1 can be taken out now.";
    QTest::newRow("unmounted since") << "Unmount"
                                     << "org.freedesktop.UDisks2.Error.NotMounted"
                                     << "STICK %1 can be taken out now.";
    QTest::newRow("not turned off") << "PowerOff"
                                    << "org.freedesktop.UDisks2.Error.Failed"
                                    << "STICK %1 can be taken out now.";
}

void tst_transfernotice::tellsWhyItCannotEject()
{
    QFETCH(QString, method);
    QFETCH(QString, error);
    QFETCH(QString, told);
    m_drives->unmountAnswer = {method, error};
    m_drives->drive = {{QStringLiteral("CanPowerOff"), true}};
    startService();
    tellOfTwoFiles();
    QTRY_VERIFY(ejectButton());
    ejectButton()->click();
    QTRY_COMPARE(text(), told);
    // What may pass can be tried again.
    QTRY_COMPARE(ejectButton() != nullptr, told.contains(QStringLiteral("cannot")));
}

void tst_transfernotice::leavesAClosedNoticeClosed()
{
    startService();
    tellOfTwoFiles();
    m_bar->withdraw(QStringLiteral("transfer"));
    QTRY_COMPARE(m_drives->asked.size(), 2);
    QTest::qWait(20);
    QCOMPARE(text(), QString());
}

QTEST_MAIN(tst_transfernotice)
#include "tst_transfernotice.moc"
