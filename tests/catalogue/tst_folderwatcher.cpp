#include "catalogue/watch/FolderWalk.h"
#include "catalogue/watch/FolderWatcher.h"
#include "catalogue/watch/WatchTable.h"
#include "support/CatalogueFolder.h"
#include "support/Rows.h"

#include <cstdio>
#include <QtTest>

static void write(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("stitches") < 0)
        qFatal("cannot write %s", qPrintable(path));
}

/** Something that happens to the files below a folder. */
using Change = void (*)(const QString &root);

Q_DECLARE_METATYPE(Change)

class tst_folderwatcher : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (WatchTable().descriptor() < 0)
            QSKIP("The system watches no folders.");
    }

    /** The folders "roses", with "roses/wild/deep" in it, and "xmas". */
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        for (const char *name : {"roses/a.pes", "roses/wild/b.dst", "roses/wild/deep/c.hus",
                                 "xmas/tree.jef", "elsewhere/d.pes"})
            write(path(QString::fromLatin1(name)));
        m_watcher = std::make_unique<FolderWatcher>();
        m_watcher->setDelay(0);
    }

    void tellsOfChanges_data()
    {
        const Rows<Change> row("change");
        row("new design", [](const QString &root) { write(root + "/roses/new.PES"); });
        row("written anew", [](const QString &root) { write(root + "/roses/a.pes"); });
        row("deep down", [](const QString &root) { write(root + "/roses/wild/deep/new.exp"); });
        row("deleted", [](const QString &root) { QFile::remove(root + "/roses/wild/b.dst"); });
        row("renamed", [](const QString &root) {
            QFile::rename(root + "/roses/a.pes", root + "/roses/b.pes");
        });
        row("download that ends", [](const QString &root) {
            QFile::rename(root + "/elsewhere/d.pes", root + "/roses/d.pes");
        });
        row("moved out", [](const QString &root) {
            QFile::rename(root + "/roses/a.pes", root + "/elsewhere/a.pes");
        });
        row("folder moved in", [](const QString &root) {
            QDir().rename(root + "/elsewhere", root + "/roses/elsewhere");
        });
        row("folder moved out", [](const QString &root) {
            QDir().rename(root + "/roses/wild", root + "/elsewhere/wild");
        });
        row("folder removed",
            [](const QString &root) { QDir(root + "/roses/wild").removeRecursively(); });
        row("renamed itself",
            [](const QString &root) { QDir().rename(root + "/roses", root + "/tulips"); });
        row("removed itself",
            [](const QString &root) { QDir(root + "/roses").removeRecursively(); });
    }

    void tellsOfChanges()
    {
        QFETCH(Change, change);
        watch({"roses", "xmas"});
        QVERIFY(told().isEmpty());
        change(m_directory->path());
        QVERIFY(comesToTellOf("roses"));
    }

    void leavesOutWhatIsNoDesign_data()
    {
        const Rows<Change> row("change");
        row("picture", [](const QString &root) { write(root + "/roses/a.pes.png"); });
        row("download under way", [](const QString &root) { write(root + "/roses/a.pes.part"); });
        row("hidden", [](const QString &root) { write(root + "/roses/.a.pes"); });
        row("hidden folder", [](const QString &root) { write(root + "/roses/.thumbs/a.pes"); });
        row("empty folder", [](const QString &root) { QDir().mkpath(root + "/roses/new/empty"); });
        row("date", [](const QString &root) {
            QFile file(root + "/roses/a.pes");
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY(file.setFileTime(QDateTime::currentDateTime(), QFile::FileModificationTime));
        });
        row("reading", [](const QString &root) {
            QFile file(root + "/roses/a.pes");
            QVERIFY(file.open(QIODevice::ReadOnly) && !file.readAll().isEmpty());
        });
        row("elsewhere", [](const QString &root) { write(root + "/elsewhere/new.pes"); });
    }

    void leavesOutWhatIsNoDesign()
    {
        QFETCH(Change, change);
        watch({"roses", "xmas"});
        change(m_directory->path());
        // The system tells one after another.
        write(path("xmas/new.pes"));
        QVERIFY(comesToTellOf("xmas"));
        QTest::qWait(10);
        QCOMPARE(told(), QStringList{path("xmas")});
    }

    void tellsInTheOrderOfTheFolders()
    {
        watch({"roses", "xmas", "roses/wild"});
        QSignalSpy changed(m_watcher.get(), &FolderWatcher::changedFoldersChanged);
        write(path("xmas/new.pes"));
        QVERIFY(changed.wait());
        write(path("roses/wild/new.pes"));
        QVERIFY(changed.wait());
        QCOMPARE(told(), (QStringList{path("roses"), path("xmas"), path("roses/wild")}));
        write(path("xmas/new.pes"));
        write(path("xmas/newer.pes"));
        QVERIFY(!changed.wait(50));
    }

    void followsFoldersThatCome()
    {
        watch({"xmas"});
        QDir().mkpath(path("xmas/2024/stars"));
        // As soon as it is watched, but it takes a moment until it is.
        for (int i = 0; i < 500 && told().isEmpty(); ++i) {
            write(path(QStringLiteral("xmas/2024/stars/%1.pes").arg(i)));
            QTest::qWait(1);
        }
        QCOMPARE(told(), QStringList{path("xmas")});
        m_watcher->beginScan();
        m_watcher->endScan(true);
        QVERIFY(told().isEmpty());
        write(path("xmas/2024/stars/late.pes"));
        QVERIFY(comesToTellOf("xmas"));
    }

    void followsFoldersThatMove()
    {
        watch({"roses", "xmas"});
        QVERIFY(QDir().rename(path("roses/wild"), path("xmas/wild")));
        QTRY_COMPARE(told().size(), 2);
        QTest::qWait(20);
        m_watcher->beginScan();
        m_watcher->endScan(true);
        write(path("xmas/wild/deep/new.pes"));
        QVERIFY(comesToTellOf("xmas"));
        QTest::qWait(20);
        QCOMPARE(told(), QStringList{path("xmas")});
    }

    void followsLinksOnce()
    {
        QVERIFY(QFile::link(path("elsewhere"), path("roses/link")));
        QVERIFY(QFile::link(path("roses"), path("roses/circle")));
        watch({"roses"});
        write(path("elsewhere/new.pes"));
        QVERIFY(comesToTellOf("roses"));
    }

    void isQuietDuringAScan()
    {
        watch({"roses", "xmas"});
        QSignalSpy changed(m_watcher.get(), &FolderWatcher::changedFoldersChanged);
        write(path("roses/new.pes"));
        QVERIFY(changed.wait());

        // A scan that was broken off may not have seen it.
        m_watcher->beginScan();
        m_watcher->endScan(false);
        QCOMPARE(told(), QStringList{path("roses")});

        // What comes while it runs may have been missed by it.
        m_watcher->beginScan();
        changed.clear();
        write(path("xmas/new.pes"));
        QVERIFY(!changed.wait(50));
        m_watcher->endScan(true);
        QCOMPARE(told(), QStringList{path("xmas")});

        // Not yet read when it begins, but there.
        write(path("roses/newer.pes"));
        m_watcher->beginScan();
        m_watcher->endScan(true);
        QVERIFY(told().isEmpty());
    }

    void leavesOutWhatTheProgramDoes()
    {
        watch({"roses", "xmas"});
        m_watcher->expect({path("roses/a.pes")});
        QVERIFY(QFile::remove(path("roses/a.pes")));
        m_watcher->expectNothing();
        write(path("xmas/new.pes"));
        QVERIFY(comesToTellOf("xmas"));
        QCOMPARE(told(), QStringList{path("xmas")});
        write(path("roses/a.pes"));
        QTRY_COMPARE(told(), (QStringList{path("roses"), path("xmas")}));
    }

    void watchesAFolderThatComesBack()
    {
        QVERIFY(QDir().rename(path("roses"), path("away")));
        watch({"roses"});
        QVERIFY(QDir().rename(path("away"), path("roses")));
        QSignalSpy watched(m_watcher.get(), &FolderWatcher::folderWatched);
        m_watcher->lookAgain();
        QVERIFY(watched.wait());
        write(path("roses/wild/new.pes"));
        QVERIFY(comesToTellOf("roses"));
        m_watcher->lookAgain();
        QVERIFY(!watched.wait(20));
    }

    void forgetsARemovedFolder()
    {
        watch({"roses", "xmas"});
        write(path("roses/new.pes"));
        QTRY_COMPARE(told().size(), 1);
        m_watcher->setFolders({path("xmas")});
        QVERIFY(told().isEmpty());
        write(path("roses/wild/newer.pes"));
        write(path("xmas/new.pes"));
        QVERIFY(comesToTellOf("xmas"));
    }

    void takesLostEventsForChanges()
    {
        const int limit =
            CatalogueFolder::read("/proc/sys/fs/inotify/max_queued_events").trimmed().toInt();
        write(path("roses/a"));
        watch({"roses", "xmas"});
        const QByteArray a = QFile::encodeName(path("roses/a"));
        const QByteArray b = QFile::encodeName(path("roses/b"));
        // Four events a time, none of them of a design.
        for (int i = limit; i >= 0; i -= 4)
            QVERIFY(std::rename(a, b) == 0 && std::rename(b, a) == 0);
        QTRY_COMPARE(told().size(), 2);
    }

    void watchesTheUpperFoldersWhenThereIsLittleRoom()
    {
        WatchTable table;
        const std::atomic<bool> abandoned{false};
        const QByteArray roses = QFile::encodeName(path("roses"));
        QVERIFY(FolderWalk(table, 2, abandoned).run(roses));
        QVERIFY(table.isWatched(roses));
        QVERIFY(table.isWatched(roses + "/wild"));
        QVERIFY(!table.isWatched(roses + "/wild/deep"));
    }

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }

    void watch(const QStringList &folders)
    {
        QStringList paths;
        for (const QString &folder : folders)
            paths += path(folder);
        QSignalSpy watched(m_watcher.get(), &FolderWatcher::folderWatched);
        m_watcher->setFolders(paths);
        while (watched.count() < folders.size())
            QVERIFY(watched.wait());
    }

    QStringList told() const { return m_watcher->changedFolders(); }
    /** Whether \a folder is, in the end, the one that is told of. */
    bool comesToTellOf(const QString &folder) const
    {
        QSignalSpy changed(m_watcher.get(), &FolderWatcher::changedFoldersChanged);
        while (told() != QStringList{path(folder)} && changed.wait()) {
        }
        return told() == QStringList{path(folder)};
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<FolderWatcher> m_watcher;
};

QTEST_GUILESS_MAIN(tst_folderwatcher)
#include "tst_folderwatcher.moc"
