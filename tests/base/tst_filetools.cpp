#include "base/Error.h"
#include "base/files/FileStamp.h"
#include "base/files/FileTools.h"
#include "support/FullDisk.h"
#include "support/Rows.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/** What was asked to reach the disk since the last look: the file, or the folder it is in. */
static QStringList synced;

/** Takes the place of the system's: nobody pulls the plug of a test. */
int fsync(int descriptor)
{
    struct stat facts;
    fstat(descriptor, &facts);
    synced.append(S_ISDIR(facts.st_mode) ? "folder" : "file");
    return 0;
}

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

class TestFileTools : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir.reset(new QTemporaryDir);
        synced.clear();
    }

    void writesAndReads()
    {
        const QByteArray data("a\r\n\0b\xff", 6);
        FileTools::writeAll(path("new/deep/file"), QByteArray(10, 'x'));
        FileTools::writeAll(path("new/deep/file"), data);
        QCOMPARE(FileTools::readAll(path("new/deep/file")), data);
        QCOMPARE(FileTools::readAll(path("new/deep/file"), FileTools::Text).left(2), "a\n");
        QCOMPARE(QDir(path("new/deep")).entryList(QDir::Files).count(), 1);
        // The file ahead of its name, or a power cut would leave the name of an empty file.
        QCOMPARE(synced.mid(2), QStringList({"file", "folder"}));
    }

    void failuresAreTold()
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

    void fullDiskLeavesTheOldFile_data()
    {
        const Rows<int, int> row("size", "room");
        // What fits into a buffer fails only when that is emptied.
        row("a byte", 1, 0);
        row("a full buffer", 16384, 0);
        row("a buffer and a byte", 16385, 16384);
        row("many buffers", 1000000, 4096);
    }

    void fullDiskLeavesTheOldFile()
    {
        QFETCH(int, size);
        QFETCH(int, room);
        FileTools::writeAll(path("file"), "precious");
        const QString message = errorOf([&] {
            const FullDisk disk{rlim_t(room)};
            FileTools::writeAll(path("file"), QByteArray(size, 'x'));
        });
        QVERIFY2(message.startsWith("Failed to write " + path("file") + ": "), qPrintable(message));
        QCOMPARE(FileTools::readAll(path("file")), "precious");
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden), QStringList("file"));
    }

    void stampsTellFractionsOfASecond()
    {
        FileTools::writeAll(path("file"), "x");
        const auto stampAt = [this](long nanoseconds) {
            const timespec times[] = {{1, nanoseconds}, {1, nanoseconds}};
            utimensat(AT_FDCWD, QFile::encodeName(path("file")).constData(), times, 0);
            return FileStamp::of(path("file"));
        };
        const FileStamp before = stampAt(1000);
        QVERIFY(stampAt(2000).isNewerThan(before));
        QVERIFY(!stampAt(1000).isNewerThan(before));
    }

    void keepsLinksAndPermissions()
    {
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
        QCOMPARE(FileTools::readAll(path("file")), "new");
        QCOMPARE(permissions("file"), shared);

        for (const char *name : {"file", "fresh"}) {
            FileTools::writeAll(path(name), "mine", FileTools::Binary, FileReplacement::Durable,
                                FileReplacement::Private);
            QCOMPARE(permissions(name), owner);
        }
    }

    void staysInTheOpenFolder()
    {
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
            QCOMPARE(FileTools::readAll(path("pulled/") + name), "new");
        }
        FileReplacement(folder, "broken.dst", FileReplacement::AsBefore).write("half");
        close(folder);
        QCOMPARE(QDir(path("pulled")).entryList(QDir::Files | QDir::Hidden).size(), 2);
        QVERIFY(
            QDir(path("drive")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
        QCOMPARE(FileTools::readAll(path("outside")), "precious");
    }

    void leftoversOfTheDeadGo()
    {
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
    }

    void copiesAndRemovesTrees()
    {
        FileTools::writeAll(path("from/a"), "1");
        FileTools::writeAll(path("from/s/b"), "2");
        FileTools::copyFilesRecursive(path("from"), path("to"));
        QCOMPARE(FileTools::readAll(path("to/a")), "1");
        QCOMPARE(FileTools::readAll(path("to/s/b")), "2");

        FileTools::writeAll(path("to/s/.hidden"), "3");
        QVERIFY(QFile::link(path("from"), path("to/link")));
        FileTools::removeDir(path("to"));
        QVERIFY(!QFile::exists(path("to")));
        QVERIFY(QFile::exists(path("from/s/b")));
    }

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    QScopedPointer<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(TestFileTools)
#include "tst_filetools.moc"
