#include "base/Error.h"
#include "base/files/FileTools.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

class TestFileTools : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void writesAndReads();
    void failuresAreTold();
    void fullDiskLeavesTheOldFile_data();
    void fullDiskLeavesTheOldFile();
    void keepsLinksAndPermissions();
    void staysInTheOpenFolder();
    void leftoversOfTheDeadGo();
    void copiesAndRemovesTrees();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    QScopedPointer<QTemporaryDir> m_dir;
};

template <class Action>
static QString errorOf(Action action)
{
    try {
        action();
    } catch (const Error &error) {
        return error.toString();
    }
    return {};
}

void TestFileTools::init()
{
    m_dir.reset(new QTemporaryDir);
}

void TestFileTools::writesAndReads()
{
    const QByteArray data("a\r\n\0b\xff", 6);
    FileTools::writeAll(path("new/deep/file"), QByteArray(10, 'x'));
    FileTools::writeAll(path("new/deep/file"), data);
    QCOMPARE(FileTools::readAll(path("new/deep/file")), data);
    QCOMPARE(FileTools::readAll(path("new/deep/file"), FileTools::Text).left(2), QByteArray("a\n"));
    QCOMPARE(QDir(path("new/deep")).entryList(QDir::Files).count(), 1);
}

void TestFileTools::failuresAreTold()
{
    const QString missing = path("missing");
    const QString unread = errorOf([&] { FileTools::readAll(missing); });
    QVERIFY2(unread.startsWith("Failed to load " + missing + ": "), qPrintable(unread));
    FileTools::writeAll(path("file"), "x");
    const QString below = path("file/below");
    const QString unwritten = errorOf([&] { FileTools::writeAll(below, "x"); });
    QVERIFY2(unwritten.startsWith("Failed to write " + below + ": "), qPrintable(unwritten));
    QVERIFY(!errorOf([&] { FileTools::readAll(m_dir->path()); }).isEmpty());
}

void TestFileTools::fullDiskLeavesTheOldFile_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("room");
    // What fits into a buffer fails only when that is emptied.
    QTest::newRow("a byte") << 1 << 0;
    QTest::newRow("a full buffer") << 16384 << 0;
    QTest::newRow("a buffer and a byte") << 16385 << 16384;
    QTest::newRow("many buffers") << 1000000 << 4096;
}

void TestFileTools::fullDiskLeavesTheOldFile()
{
#ifdef Q_OS_UNIX
    QFETCH(int, size);
    QFETCH(int, room);
    // A limit on the size of files stands in for a disk without room.
    FileTools::writeAll(path("file"), "precious");
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{rlim_t(room), before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString message =
        errorOf([&] { FileTools::writeAll(path("file"), QByteArray(size, 'x')); });
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    QVERIFY2(message.startsWith("Failed to write " + path("file") + ": "), qPrintable(message));
    QCOMPARE(FileTools::readAll(path("file")), QByteArray("precious"));
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden), QStringList("file"));
#endif
}

void TestFileTools::keepsLinksAndPermissions()
{
#ifdef Q_OS_UNIX
    constexpr auto owner = QFile::ReadOwner | QFile::WriteOwner;
    constexpr auto shared = owner | QFile::ReadGroup | QFile::WriteGroup;
    const auto permissions = [&](const char *name) {
        return QFile::permissions(path(name)) & (shared | QFile::ReadOther | QFile::WriteOther);
    };
    FileTools::writeAll(path("file"), "old");
    QVERIFY(QFile::setPermissions(path("file"), shared));
    QVERIFY(QFile::link("file", path("link")));
    FileTools::writeAll(path("link"), "new");
    QVERIFY(QFileInfo(path("link")).isSymLink());
    QCOMPARE(FileTools::readAll(path("file")), QByteArray("new"));
    QCOMPARE(permissions("file"), shared);

    for (const char *name : {"file", "fresh"}) {
        FileTools::writeAll(path(name), "mine", FileTools::Binary, FileReplacement::Durable,
                            FileReplacement::Private);
        QCOMPARE(permissions(name), owner);
    }
#endif
}

void TestFileTools::staysInTheOpenFolder()
{
#ifdef Q_OS_UNIX
    QDir root(m_dir->path());
    QVERIFY(root.mkdir("drive"));
    FileTools::writeAll(path("drive/rose.dst"), "old");
    FileTools::writeAll(path("outside"), "precious");
    QVERIFY(QFile::link("../outside", path("drive/link.dst")));
    const int folder = open(QFile::encodeName(path("drive")).constData(), O_RDONLY | O_CLOEXEC);
    // As when a drive is pulled and something else comes to lie at its place.
    QVERIFY(folder >= 0 && root.rename("drive", "pulled") && root.mkdir("drive"));
    for (const char *name : {"rose.dst", "link.dst"}) {
        FileReplacement file(folder, name, FileReplacement::AsBefore);
        QVERIFY(file.write("new"));
        QVERIFY2(file.commit(FileReplacement::Durable), qPrintable(file.errorString()));
        QCOMPARE(FileTools::readAll(path("pulled/") + name), QByteArray("new"));
    }
    FileReplacement(folder, "broken.dst", FileReplacement::AsBefore).write("half");
    close(folder);
    QCOMPARE(QDir(path("pulled")).entryList(QDir::Files | QDir::Hidden).size(), 2);
    QVERIFY(QDir(path("drive")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QCOMPARE(FileTools::readAll(path("outside")), QByteArray("precious"));
#endif
}

void TestFileTools::leftoversOfTheDeadGo()
{
#ifdef Q_OS_UNIX
    const pid_t dead = fork();
    if (dead == 0)
        _exit(0);
    waitpid(dead, nullptr, 0);
    const QString ofTheDead = QStringLiteral(".hoopline-%1-0.part").arg(dead);
    const QString ofTheLiving = QStringLiteral(".hoopline-%1-0.part").arg(getpid());
    // Of a process that had this one's number before.
    const QString ofANamesake = QStringLiteral(".hoopline-%1-4000000000.part").arg(getpid());
    const QStringList strangers{".hoopline-x-0.part", "a.part"};
    const QStringList all = QStringList(strangers) << ofTheDead << ofANamesake << ofTheLiving;
    for (const QString &name : all)
        FileTools::writeAll(path(name), "half");
    FileReplacement::removeLeftovers(m_dir->path());
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList(ofTheLiving) + strangers);
#endif
}

void TestFileTools::copiesAndRemovesTrees()
{
    FileTools::writeAll(path("from/a"), "1");
    FileTools::writeAll(path("from/s/b"), "2");
    FileTools::copyFilesRecursive(path("from"), path("to"));
    QCOMPARE(FileTools::readAll(path("to/a")), QByteArray("1"));
    QCOMPARE(FileTools::readAll(path("to/s/b")), QByteArray("2"));

    FileTools::writeAll(path("to/s/.hidden"), "3");
    QVERIFY(QFile::link(path("from"), path("to/link")));
    FileTools::removeDir(path("to"));
    QVERIFY(!QFile::exists(path("to")));
    QVERIFY(QFile::exists(path("from/s/b")));
}

QTEST_GUILESS_MAIN(TestFileTools)
#include "tst_filetools.moc"
