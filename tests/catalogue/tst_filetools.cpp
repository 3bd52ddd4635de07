#include "app/base/Error.h"
#include "catalogue/disk/FileTools.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

class TestFileTools : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void writesAndReads();
    void failuresAreTold();
    void fullDiskLeavesTheOldFile();
    void copiesTrees();
    void removesTrees();
    void touchAndDelete();
    void commonPrefix_data();
    void commonPrefix();

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
    FileTools::writeAll(path("new/deep/file"), data);
    QCOMPARE(FileTools::readAll(path("new/deep/file")), data);
    FileTools::writeAll(path("new/deep/file"), QByteArray());
    QCOMPARE(FileTools::readAll(path("new/deep/file")), QByteArray());
    QCOMPARE(QDir(path("new/deep")).entryList(QDir::Files).count(), 1);
    FileTools::writeAll(path("text"), "a\r\nb", FileTools::Binary);
    QCOMPARE(FileTools::readAll(path("text"), FileTools::Text), QByteArray("a\nb"));
}

void TestFileTools::failuresAreTold()
{
    const QString missing = path("missing");
    QVERIFY(errorOf([&] {
                FileTools::readAll(missing);
            }).startsWith("Failed to load " + missing + ": "));
    QVERIFY(!errorOf([&] { FileTools::readAll(m_dir->path()); }).isEmpty());
    FileTools::writeAll(path("file"), "x");
    const QString below = path("file/below");
    QVERIFY(errorOf([&] {
                FileTools::writeAll(below, "x");
            }).startsWith("Failed to write " + below + ": "));
    QVERIFY(!errorOf([&] { FileTools::writeAll(m_dir->path(), "x"); }).isEmpty());
}

void TestFileTools::fullDiskLeavesTheOldFile()
{
#ifdef Q_OS_UNIX
    // A limit on the size of files stands in for a disk without room.
    FileTools::writeAll(path("file"), "precious");
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{4096, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString message =
        errorOf([this] { FileTools::writeAll(path("file"), QByteArray(1000000, 'x')); });
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    QVERIFY2(message.startsWith("Failed to write " + path("file") + ": "), qPrintable(message));
    QCOMPARE(FileTools::readAll(path("file")), QByteArray("precious"));
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList("file"));
#endif
}

void TestFileTools::copiesTrees()
{
    FileTools::writeAll(path("from/a"), "1");
    FileTools::writeAll(path("from/s/b"), "2");
    FileTools::copyFilesRecursive(path("from"), path("to"));
    QCOMPARE(FileTools::readAll(path("to/a")), QByteArray("1"));
    QCOMPARE(FileTools::readAll(path("to/s/b")), QByteArray("2"));
}

void TestFileTools::removesTrees()
{
    FileTools::writeAll(path("tree/s/.hidden"), "1");
    FileTools::writeAll(path("kept/file"), "2");
    QVERIFY(QFile::link(path("kept"), path("tree/link")));
    FileTools::removeDir(path("tree"));
    FileTools::removeDir(path("tree"));
    QVERIFY(!QFile::exists(path("tree")));
    QVERIFY(QFile::exists(path("kept/file")));
}

void TestFileTools::touchAndDelete()
{
    FileTools::touchFiles({path("a"), path("b")});
    QVERIFY(QFile::exists(path("a")) && QFile::exists(path("b")));
    QVERIFY(!errorOf([this] { FileTools::touchFile(path("missing/a")); }).isEmpty());
    FileTools::deleteFiles({path("a"), path("missing")});
    QVERIFY(!QFile::exists(path("a")));
}

void TestFileTools::commonPrefix_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<QString>("prefix");
    QTest::newRow("none") << QStringList() << "";
    QTest::newRow("one") << QStringList("/a/b") << "/a/";
    QTest::newRow("siblings") << QStringList({"/a/bc", "/a/bd"}) << "/a/";
    QTest::newRow("nested") << QStringList({"/a/b/c", "/a/b"}) << "/a/";
    QTest::newRow("nothing shared") << QStringList({"a/b", "c/d"}) << "";
}

void TestFileTools::commonPrefix()
{
    QFETCH(QStringList, paths);
    QFETCH(QString, prefix);
    QCOMPARE(FileTools::longestCommonPathPrefix(paths), prefix);
}

QTEST_GUILESS_MAIN(TestFileTools)
#include "tst_filetools.moc"
