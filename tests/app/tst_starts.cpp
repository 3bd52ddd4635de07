#include "support/GuardFolder.h"

#include "app/application/PathMessage.h"
#include "base/BuildConfig.h"
#include "base/files/FileLock.h"
#include "base/GlobalSettings.h"
#include "base/InstanceBlock.h"
#include "GuardedProcess.h"
#include "support/Rows.h"

#include <csignal>
#include <QLocalServer>
#include <QtTest>

static QStringList repeated(int times, const QString &text)
{
    return QVector<QString>(times, text).toList();
}

/** No start ends without a window or a word, whatever others have left. */
class StartsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The data folder of the processes is named by these.
        QCoreApplication::setApplicationName("Hoopline Organizer");
        QCoreApplication::setOrganizationName(QLatin1String(BuildConfig::Organisation));
    }

    void init() { m_directory = std::make_unique<GuardFolder>(); }
    void cleanup() { m_directory.reset(); }

    void startsWithoutAUsableTemporaryFolder_data()
    {
        const Rows<QString> row("folder");
        row("missing", "gone");
        row("takes no files, not even those of root", "/proc");
        row("too long for a socket", QString(120, 'x'));
        row("occupied", "occupied");
    }

    void startsWithoutAUsableTemporaryFolder()
    {
        QFETCH(QString, folder);
        QVERIFY(QDir(m_directory->path()).mkpath(QString(120, 'x')));
        for (const QString &name : {GuardFolder::serverName(), GuardFolder::serverName() + ".lock"})
            QVERIFY(QDir(m_directory->path()).mkpath("occupied/" + name + "/by/somebody"));
        qputenv("TMPDIR", QDir(m_directory->path()).absoluteFilePath(folder).toLocal8Bit());
        {
            GuardedProcess primary;
            QVERIFY(primary.becomesPrimary());
            QVERIFY(GuardedProcess().endsAsSecond());
            QVERIFY(primary.waitForLine("started 1"));
            primary.kill();
        }
        QVERIFY(GuardedProcess().becomesPrimary());
    }

    void takesOverFromOneThatIsGone_data()
    {
        const Rows<qint64> row("pid");
        row("a dead process", 0x3fffffff);
        row("a process that is no organizer", QCoreApplication::applicationPid());
        row("none", -1);
    }

    // A block outlives its holder when somebody else is attached, or when another file has its key.
    void takesOverFromOneThatIsGone()
    {
        QFETCH(qint64, pid);
        QSharedMemory memory(GuardFolder::serverName());
        QVERIFY(memory.create(sizeof(InstanceBlock)));
        auto *block = static_cast<InstanceBlock *>(memory.data());
        block->initialize();
        block->primary = true;
        block->primaryPid = pid;
        block->seal();
        GuardedProcess primary;
        QVERIFY(primary.becomesPrimary());
        QCOMPARE(block->primaryPid, primary.processId());
    }

    void waitsForTheEndOfTheFirst()
    {
        GuardedProcess first({"lingering"});
        QVERIFY(first.becomesPrimary());
        first.closeWriteChannel();
        QVERIFY(GuardedProcess({"patient"}).becomesPrimary());
    }

    void tellsOfOneThatDoesNotAnswer()
    {
        GuardedProcess primary;
        QVERIFY(primary.becomesPrimary());
        ::kill(pid_t(primary.processId()), SIGSTOP);
        const QByteArray words = GuardedProcess({"hasty"}).words();
        ::kill(pid_t(primary.processId()), SIGCONT);
        QVERIFY2(words.contains(QByteArray::number(primary.processId())), words);
    }

    void tellsWhenThereIsNoWayToStart()
    {
        const QList<QPair<const char *, QByteArray>> places{
            {"TMPDIR", "/proc"},
            {"XDG_DATA_HOME", "/proc"},
            {"XDG_CONFIG_HOME", m_directory->path().toLocal8Bit()}};
        QList<QPair<const char *, QByteArray>> before;
        for (const auto &place : places) {
            before.append({place.first, qgetenv(place.first)});
            qputenv(place.first, place.second);
        }
        const QByteArray words = GuardedProcess().words("cannot start");
        for (const auto &place : before)
            qputenv(place.first, place.second);
        QVERIFY2(words.contains("cannot start"), words);
    }

    void tellsOfOneThatItCannotReach()
    {
        GuardedProcess primary;
        QVERIFY(primary.becomesPrimary());
        // As after the folder was cleaned, or for a start that has another one.
        QVERIFY(QDir(m_directory->path()).mkpath("other"));
        qputenv("TMPDIR", m_directory->filePath("other").toLocal8Bit());
        const QByteArray words = GuardedProcess().words();
        QVERIFY2(words.contains(QByteArray::number(primary.processId())), words);
    }

    void takesPartWithEarlierVersions()
    {
        // These neither answer nor hold a lock.
        QSharedMemory memory(GuardFolder::serverName());
        QVERIFY(memory.create(sizeof(InstanceBlock)));
        auto *block = static_cast<InstanceBlock *>(memory.data());
        block->initialize();
        block->primary = true;
        block->seal();
        QLocalServer server;
        QVERIFY(server.listen(GuardFolder::serverName()));
        QVERIFY(GuardedProcess({"hasty"}).endsAsSecond());
    }

    void startsBesideAScan()
    {
        QVERIFY(QDir().mkpath(GlobalSettings().applicationDataPath()));
        FileLock lock(GlobalSettings().lockFilePath(), "hoopline-cli");
        QCOMPARE(lock.tryLock(), FileLock::Held);
        QVERIFY(GuardedProcess().becomesPrimary());
    }

    void passesOnWhatToOpen()
    {
        const QByteArray folder = m_directory->path().toUtf8();
        GuardedProcess primary({"open", m_directory->path()});
        QVERIFY(primary.waitForLine("show 1 " + folder));
        // More than the primary reads at once.
        QVERIFY(GuardedProcess(QStringList("open") + repeated(9000, folder)).endsAsSecond());
        QVERIFY(primary.waitForLine("show 9000 " + folder));
    }

    void takesOnlyPathsThatAreThere()
    {
        const QByteArray folder = m_directory->path().toUtf8();
        const QByteArray good = folder + '\0';
        QCOMPARE(PathMessage::decode(PathMessage::encode({folder})), QStringList(folder));
        QCOMPARE(
            PathMessage::decode(good + "relative" + '\0' + folder + "/gone" + '\0' + '\0' + good),
            (QStringList{folder, folder}));
        QCOMPARE(PathMessage::decode(good + "/"), QStringList(folder));
        QCOMPARE(PathMessage::decode("hello"), QStringList());
        QCOMPARE(PathMessage::decode(good + QByteArray(PathMessage::MaxSize, 'x')), QStringList());
        QVERIFY(PathMessage::encode(repeated(100000, folder)).size() <= PathMessage::MaxSize);
    }

private:
    std::unique_ptr<GuardFolder> m_directory;
};

QTEST_GUILESS_MAIN(StartsTest)
#include "tst_starts.moc"
