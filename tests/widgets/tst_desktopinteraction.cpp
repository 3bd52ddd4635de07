#include "widgets/controls/DesktopInteraction.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString Service = QStringLiteral("org.freedesktop.FileManager1");
const QString Path = QStringLiteral("/org/freedesktop/FileManager1");

/** A file manager that remembers what it was asked to show. */
class FileManager : public QDBusVirtualObject
{
public:
    QString introspect(const QString &) const override { return QString(); }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (message.member() != QLatin1String("ShowItems"))
            return false;
        shown = message.arguments().first().toStringList();
        return bus.send(message.createReply());
    }

    QStringList shown;
};

} // namespace

class tst_desktopinteraction : public QObject
{
    Q_OBJECT

public slots:
    void openUrl(const QUrl &url) { m_opened += url; }

private slots:
    void initTestCase();
    void cleanupTestCase();
    void opensTheFolderWithoutAFileManager();
    void selectsTheFile();

private:
    QString writeBusConfiguration() const;

    QProcess m_bus;
    QTemporaryDir m_dir;
    QString m_file;
    QList<QUrl> m_opened;
};

/** A bus that starts no service by itself, so that no installed file manager answers. */
QString tst_desktopinteraction::writeBusConfiguration() const
{
    const QString path = m_dir.filePath(QStringLiteral("bus.conf"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write("<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
                   "<policy context='default'><allow send_destination='*' eavesdrop='true'/>"
                   "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>");
    return path;
}

void tst_desktopinteraction::initTestCase()
{
    const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (daemon.isEmpty())
        QSKIP("there is no dbus-daemon here");
    m_bus.start(daemon, {QStringLiteral("--config-file=") + writeBusConfiguration(),
                         QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    QVERIFY(m_bus.waitForReadyRead());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
    m_file = m_dir.filePath(QStringLiteral("a \"rose\" & ü#1.pes"));
    QFile(m_file).open(QIODevice::WriteOnly);
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openUrl");
}

void tst_desktopinteraction::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    m_bus.kill();
    m_bus.waitForFinished();
}

void tst_desktopinteraction::opensTheFolderWithoutAFileManager()
{
    DesktopInteraction::revealInFinder(m_file);
    QVERIFY(m_opened.isEmpty());
    QTRY_COMPARE(m_opened.count(), 1);
    QCOMPARE(m_opened.first(), QUrl::fromLocalFile(m_dir.path()));
}

void tst_desktopinteraction::selectsTheFile()
{
    m_opened.clear();
    FileManager manager;
    QDBusConnection bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("manager"));
    QVERIFY(bus.registerVirtualObject(Path, &manager));
    QVERIFY(bus.registerService(Service));
    DesktopInteraction::revealInFinder(m_file);
    QTRY_COMPARE(manager.shown.count(), 1);
    QCOMPARE(QUrl(manager.shown.first()).toLocalFile(), m_file);
    QVERIFY(m_opened.isEmpty());
    bus.unregisterService(Service);
    QDBusConnection::disconnectFromBus(QStringLiteral("manager"));
}

QTEST_MAIN(tst_desktopinteraction)
#include "tst_desktopinteraction.moc"
