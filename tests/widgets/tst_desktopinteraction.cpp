#include "support/PrivateBus.h"
#include "widgets/controls/DesktopInteraction.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDesktopServices>
#include <QtTest>

namespace {

const QString Service = "org.freedesktop.FileManager1";
const QString Path = "/org/freedesktop/FileManager1";

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
    void initTestCase()
    {
        if (!m_bus.start("session"))
            QSKIP("there is no dbus-daemon here");
        m_file = m_dir.filePath("a \"rose\" & ü#1.pes");
        QFile(m_file).open(QIODevice::WriteOnly);
        QDesktopServices::setUrlHandler("file", this, "openUrl");
    }

    void cleanupTestCase() { QDesktopServices::unsetUrlHandler("file"); }

    void opensTheFolderWithoutAFileManager()
    {
        DesktopInteraction::revealInFinder(m_file);
        QVERIFY(m_opened.isEmpty());
        QTRY_COMPARE(m_opened.count(), 1);
        QCOMPARE(m_opened.first(), QUrl::fromLocalFile(m_dir.path()));
    }

    void selectsTheFile()
    {
        m_opened.clear();
        FileManager manager;
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "manager");
        QVERIFY(bus.registerVirtualObject(Path, &manager));
        QVERIFY(bus.registerService(Service));
        DesktopInteraction::revealInFinder(m_file);
        QTRY_COMPARE(manager.shown.count(), 1);
        QCOMPARE(QUrl(manager.shown.first()).toLocalFile(), m_file);
        QVERIFY(m_opened.isEmpty());
        bus.unregisterService(Service);
        QDBusConnection::disconnectFromBus("manager");
    }

private:
    PrivateBus m_bus;
    QTemporaryDir m_dir;
    QString m_file;
    QList<QUrl> m_opened;
};

QTEST_MAIN(tst_desktopinteraction)
#include "tst_desktopinteraction.moc"
