#include "base/files/FileLock.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

class FileLockTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_dir.reset(new QTemporaryDir); }
    void onlyOneHolds();
    void tellsItsHolder();
    void goesWithItsHolder();
    void contentBlocksNobody_data();
    void contentBlocksNobody();
    void replacedFileIsTakenAnew();
    void isUnavailable_data();
    void isUnavailable();

private:
    QString path(const QString &name = "lock") const { return m_dir->filePath(name); }

    QScopedPointer<QTemporaryDir> m_dir;
};

void FileLockTest::onlyOneHolds()
{
    FileLock first(path(), "first");
    FileLock second(path(), "second");
    QCOMPARE(first.tryLock(), FileLock::Held);
    QCOMPARE(first.tryLock(), FileLock::Held);
    QCOMPARE(second.tryLock(), FileLock::HeldByOther);
    QVERIFY(!second.isHeld());
    first.unlock();
    QCOMPARE(second.tryLock(), FileLock::Held);
}

void FileLockTest::tellsItsHolder()
{
    FileLock lock(path(), "hoopline organizer");
    QCOMPARE(lock.holder().pid, qint64(0));
    QCOMPARE(lock.tryLock(), FileLock::Held);
    const FileLock other(path(), "other");
    QCOMPARE(other.holder().pid, qint64(getpid()));
    QCOMPARE(other.holder().program, QStringLiteral("hoopline organizer"));
}

void FileLockTest::goesWithItsHolder()
{
    int ready[2];
    QVERIFY(pipe(ready) == 0);
    const pid_t child = fork();
    if (child == 0) {
        FileLock lock(path(), "child");
        lock.tryLock();
        (void)!write(ready[1], "x", 1);
        for (;;)
            pause();
    }
    char byte = 0;
    QVERIFY(read(ready[0], &byte, 1) == 1);
    FileLock lock(path(), "parent");
    QCOMPARE(lock.tryLock(), FileLock::HeldByOther);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    QCOMPARE(lock.tryLock(), FileLock::Held);
}

void FileLockTest::contentBlocksNobody_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << QByteArray("42");
    QTest::newRow("of a process that lives") << QByteArray::number(getppid()) + " hoopline-cli\n";
    QTest::newRow("of another program") << QByteArray("1\nhoopline-cli\nother-machine\n");
    QTest::newRow("noise") << QByteArray(100000, '\xff');
}

void FileLockTest::contentBlocksNobody()
{
    QFETCH(QByteArray, content);
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
    file.close();
    FileLock lock(path(), "tester");
    QVERIFY(lock.holder().program.size() < 300);
    QCOMPARE(lock.tryLock(), FileLock::Held);
    QCOMPARE(lock.holder().program, QStringLiteral("tester"));
}

// A lock on a file that is no longer there would keep nobody out.
void FileLockTest::replacedFileIsTakenAnew()
{
    FileLock first(path(), "first");
    QCOMPARE(first.tryLock(), FileLock::Held);
    FileLock second(path(), "second");
    first.unlockAndRemove();
    QVERIFY(!QFile::exists(path()));
    QCOMPARE(second.tryLock(), FileLock::Held);
    FileLock third(path(), "third");
    QCOMPARE(third.tryLock(), FileLock::HeldByOther);
    first.unlockAndRemove();
    QVERIFY(QFile::exists(path()));
}

void FileLockTest::isUnavailable_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing folder") << "none/lock";
    QTest::newRow("name beyond measure") << QString(300, 'x');
    QTest::newRow("link to somewhere else") << "link";
}

void FileLockTest::isUnavailable()
{
    QFETCH(QString, name);
    QVERIFY(QFile::link(path("target"), path("link")));
    FileLock lock(path(name), "tester");
    QCOMPARE(lock.tryLock(), FileLock::Unavailable);
    QVERIFY(!QFile::exists(path("target")));
}

QTEST_GUILESS_MAIN(FileLockTest)
#include "tst_filelock.moc"
