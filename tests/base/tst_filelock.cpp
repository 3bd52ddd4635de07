#include "base/files/FileLock.h"
#include "support/Rows.h"

#include <QtTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

class FileLockTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_dir.reset(new QTemporaryDir); }

    void onlyOneHolds()
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

    void tellsItsHolder()
    {
        FileLock lock(path(), "hoopline organizer");
        QCOMPARE(lock.holder().pid, qint64(0));
        QCOMPARE(lock.tryLock(), FileLock::Held);
        const FileLock other(path(), "other");
        QCOMPARE(other.holder().pid, qint64(getpid()));
        QCOMPARE(other.holder().program, "hoopline organizer");
    }

    void goesWithItsHolder()
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

    void contentBlocksNobody_data()
    {
        const Rows<QByteArray> row("content");
        row("empty", {});
        row("cut", "42");
        row("of a process that lives", QByteArray::number(getppid()) + " hoopline-cli\n");
        row("of another program", "1\nhoopline-cli\nother-machine\n");
        row("noise", QByteArray(100000, '\xff'));
    }

    void contentBlocksNobody()
    {
        QFETCH(QByteArray, content);
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
        file.close();
        FileLock lock(path(), "tester");
        QVERIFY(lock.holder().program.size() < 300);
        QCOMPARE(lock.tryLock(), FileLock::Held);
        QCOMPARE(lock.holder().program, "tester");
    }

    // A lock on a file that is no longer there would keep nobody out.
    void replacedFileIsTakenAnew()
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

    void isUnavailable_data()
    {
        const Rows<QString> row("name");
        row("missing folder", "none/lock");
        row("name beyond measure", QString(300, 'x'));
        row("link to somewhere else", "link");
    }

    void isUnavailable()
    {
        QFETCH(QString, name);
        QVERIFY(QFile::link(path("target"), path("link")));
        FileLock lock(path(name), "tester");
        QCOMPARE(lock.tryLock(), FileLock::Unavailable);
        QVERIFY(!QFile::exists(path("target")));
    }

private:
    QString path(const QString &name = "lock") const { return m_dir->filePath(name); }

    QScopedPointer<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(FileLockTest)
#include "tst_filelock.moc"
