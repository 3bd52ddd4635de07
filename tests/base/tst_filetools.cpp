#include "base/Error.h"
#include "base/files/FileTools.h"

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
