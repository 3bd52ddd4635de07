#include "base/Error.h"
#include "catalogue/records/IThread.h"
#include "catalogue/sync/FileSync.h"
#include "embroidery/EmbroideryIO.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/ScriptedListener.h"
#include <memory>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

class FileSyncTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void readsNewDesigns();
    void doesNotReadWhatDidNotChange();
    void keepsUserData_data();
    void keepsUserData();
    void goesOnAfterDamagedDesigns();
    void changesNothingWhenScanIsAborted();
    void leavesBareRecordsWhenLoadingIsAborted();
    void readsNextTimeWhatCannotBeReadNow();
    void keepsPreviewsInStep();
    void reconnectsByContentOnly();
    void prefersCopyWithUserData();

private:
    void write(const char *name, const DstDesign &design) { QVERIFY(design.writeTo(path(name))); }
    QList<int> sync();
    QSharedPointer<IFile> file(const QString &name) const;
    QString preview(const QSharedPointer<IFile> &file) const
    {
        return GlobalSettings().previewImagePath(file->contentHash());
    }
    QString path(const char *name) const { return m_folder->design(QLatin1String(name)); }

    std::unique_ptr<CatalogueFolder> m_folder;
    QSharedPointer<Project> m_project;
    ScriptedListener m_listener;
};

void FileSyncTest::init()
{
    m_folder = std::make_unique<CatalogueFolder>();
    m_project = QSharedPointer<Project>::create();
    m_project->setSmartFolders({m_folder->designs()}, QString());
    m_listener = ScriptedListener();
}

void FileSyncTest::cleanup()
{
    m_project.clear();
    m_folder.reset();
}

/** How many records were added, updated, reconnected and removed, and how many unreadable. */
QList<int> FileSyncTest::sync()
{
    FileSync sync(m_project, &m_listener);
    sync.syncFilesWithDisk(Embroidery::EmbroideryIO::supportedFormats());
    const SyncCounts counts = sync.counts();
    return {counts.added, counts.updated, counts.reconnected, counts.removed, counts.unreadable};
}

QSharedPointer<IFile> FileSyncTest::file(const QString &name) const
{
    const auto files = m_project->files();
    for (const auto &file : files) {
        if (file->absoluteFilePath() == m_folder->design(name))
            return file;
    }
    return {};
}

void FileSyncTest::readsNewDesigns()
{
    QVERIFY(QDir(m_folder->designs()).mkpath("deep/er"));
    write("b.dst", DstDesign::square("First"));
    write("deep/er/A.DST", DstDesign::square("Second", 50));
    for (const char *other : {"notes.txt", "dst", ".hidden.dst"})
        write(other, DstDesign::square());

    QCOMPARE(sync(), (QList<int>{2, 0, 0, 0, 0}));
    QCOMPARE(m_listener.steps, (QList<int>{10000, 2}));
    QCOMPARE(m_listener.texts.mid(3), (QStringList{"Loading b.dst", "Loading A.DST"}));
    const auto design = file("b.dst");
    QVERIFY(design && file("deep/er/A.DST"));
    QCOMPARE(design->name(), QStringLiteral("First"));
    QCOMPARE(design->designSize(), QSizeF(10.0, 10.0));
    QCOMPARE(design->stitchCount(), 8);
    QCOMPARE(design->contentHash(),
             QCryptographicHash::hash(m_folder->read(path("b.dst")), QCryptographicHash::Md5));
    QCOMPARE(design->threads().size(), 2);
    QCOMPARE(design->threads().at(1)->color(), QColor(0, 255, 0));
    QCOMPARE(design->threads().at(1)->colorName(), QStringLiteral("Green"));
    QCOMPARE(QImage(preview(design)).size(), QSize(400, 400));
}

void FileSyncTest::doesNotReadWhatDidNotChange()
{
    write("a.dst", DstDesign::square("Before"));
    sync();
    const QDateTime date = QFileInfo(path("a.dst")).lastModified();
    // Same date and size with other bytes: only a run that reads would notice.
    write("a.dst", DstDesign::square("Behind"));
    QVERIFY(CatalogueFolder::setDate(path("a.dst"), date));
    QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 0}));
    QCOMPARE(file("a.dst")->name(), QStringLiteral("Before"));
}

void FileSyncTest::keepsUserData_data()
{
    QTest::addColumn<QString>("newName");
    QTest::addColumn<bool>("newContent");
    QTest::addColumn<bool>("touch");
    QTest::addColumn<QList<int>>("counts");
    QTest::newRow("rename") << "other.dst" << false << false << QList<int>{0, 0, 1, 0, 0};
    QTest::newRow("move to another smart folder")
        << "../more/a.dst" << false << false << QList<int>{0, 0, 1, 0, 0};
    QTest::newRow("touch") << "a.dst" << false << true << QList<int>{0, 1, 0, 0, 0};
    QTest::newRow("change") << "a.dst" << true << true << QList<int>{0, 1, 0, 0, 0};
    QTest::newRow("rename and touch") << "b.dst" << false << true << QList<int>{0, 1, 1, 0, 0};
}

void FileSyncTest::keepsUserData()
{
    QFETCH(QString, newName);
    QFETCH(bool, newContent);
    QFETCH(bool, touch);
    QVERIFY(QDir(m_folder->designs()).mkpath("../more"));
    const QString more = QDir::cleanPath(m_folder->design("../more"));
    m_project->setSmartFolders({m_folder->designs(), more}, QString());
    write("a.dst", DstDesign::square());
    sync();
    const auto record = file("a.dst");
    record->setTags({"flowers"});
    record->setNotes("for Ada");
    record->setFavorite(true);
    record->setName("not from the file");

    const QString newPath = QDir::cleanPath(m_folder->design(newName));
    if (newPath != path("a.dst"))
        QVERIFY(QFile::rename(path("a.dst"), newPath));
    if (newContent)
        QVERIFY(DstDesign::square("Changed", 60).writeTo(newPath));
    if (touch)
        QVERIFY(CatalogueFolder::setDate(newPath, QDateTime::currentDateTime().addDays(-1)));
    QTEST(sync(), "counts");

    QCOMPARE(m_project->files().size(), 1);
    QCOMPARE(m_project->files().constFirst(), record);
    QCOMPARE(record->absoluteFilePath(), newPath);
    QCOMPARE(record->tags(), QStringList{"flowers"});
    QCOMPARE(record->notes(), QStringLiteral("for Ada"));
    QVERIFY(record->isFavorite());
    // Only another content is read.
    QCOMPARE(record->name(), QString(newContent ? "Changed" : "not from the file"));
    QCOMPARE(record->designSize().width(), newContent ? 6.0 : 10.0);
    QVERIFY(QFile::exists(preview(record)));
    QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 0}));
}

void FileSyncTest::goesOnAfterDamagedDesigns()
{
    QVERIFY(QFile::copy(SAMPLES_DIR "/Shapes/star.pes", path("a.pes")));
    sync();
    const int stitches = file("a.pes")->stitchCount();
    QVERIFY(stitches > 0);
    QVERIFY(CatalogueFolder::write(path("a.pes"), "#PES"));
    QVERIFY(CatalogueFolder::write(path("b.hus"), "junk"));
    write("c.dst", DstDesign::square());
    QCOMPARE(sync(), (QList<int>{2, 1, 0, 0, 2}));
    QCOMPARE(file("a.pes")->stitchCount(), stitches);
    QCOMPARE(file("a.pes")->fileSize(), 4);
    QCOMPARE(file("b.hus")->designSize(), QSizeF(-1, -1));
    QCOMPARE(file("c.dst")->stitchCount(), 8);
    // They have no preview and are tried again each time.
    QCOMPARE(sync(), (QList<int>{0, 2, 0, 0, 2}));
}

void FileSyncTest::changesNothingWhenScanIsAborted()
{
    write("a.dst", DstDesign::square());
    sync();
    QVERIFY(QFile::remove(path("a.dst")));
    write("b.dst", DstDesign::square());
    m_listener.onProceed = [this](const QString &) { m_listener.aborted = true; };
    QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 0}));
    QCOMPARE(m_project->files().size(), 1);
    QVERIFY(file("a.dst"));
}

void FileSyncTest::leavesBareRecordsWhenLoadingIsAborted()
{
    write("a.dst", DstDesign::square("One"));
    write("b.dst", DstDesign::square("Two"));
    m_listener.onProceed = [this](const QString &text) {
        m_listener.aborted = text == QLatin1String("Loading a.dst") || m_listener.aborted;
    };
    QCOMPARE(sync(), (QList<int>{2, 0, 0, 0, 0}));
    QCOMPARE(m_listener.texts.constLast(), QStringLiteral("Aborting..."));
    QCOMPARE(file("a.dst")->stitchCount(), 8);
    QVERIFY(file("b.dst")->contentHash().isEmpty());

    m_listener = ScriptedListener();
    QCOMPARE(sync(), (QList<int>{0, 1, 0, 0, 0}));
    QCOMPARE(file("b.dst")->name(), QStringLiteral("Two"));
}

void FileSyncTest::readsNextTimeWhatCannotBeReadNow()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("The sanitizer needs a descriptor to look at an exception, and finds none.");
#elif defined(Q_OS_UNIX)
    write("a.dst", DstDesign::square("Before"));
    sync();
    write("a.dst", DstDesign::square("Changed", 60).stitch(1, 1));
    // Without a free descriptor a file can be looked at, but not opened, whoever runs the test.
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &before), 0);
    m_listener.onProceed = [&before](const QString &text) {
        const rlimit none{0, before.rlim_max};
        if (text.startsWith(QLatin1String("Loading")))
            setrlimit(RLIMIT_NOFILE, &none);
    };
    const QList<int> counts = sync();
    setrlimit(RLIMIT_NOFILE, &before);
    QCOMPARE(counts, (QList<int>{0, 0, 0, 0, 1}));
    QCOMPARE(file("a.dst")->name(), QStringLiteral("Before"));
    m_listener = ScriptedListener();
    QCOMPARE(sync(), (QList<int>{0, 1, 0, 0, 0}));
    QCOMPARE(file("a.dst")->name(), QStringLiteral("Changed"));
#endif
}

void FileSyncTest::keepsPreviewsInStep()
{
    write("a.dst", DstDesign::square("Goes"));
    write("twin.dst", DstDesign::square("Goes"));
    write("b.dst", DstDesign::square("Stays"));
    sync();
    const QString image = preview(file("a.dst"));
    QCOMPARE(preview(file("twin.dst")), image);
    QVERIFY(QFile::remove(image));
    QCOMPARE(sync(), (QList<int>{0, 2, 0, 0, 0}));
    QVERIFY(QFile::exists(image));

    // Orphans stay until the limit is passed.
    QVERIFY(QFile::remove(path("a.dst")) && QFile::remove(path("twin.dst")));
    QVERIFY(QFile::resize(image, 250 * 1048576)); // sparse
    QCOMPARE(sync(), (QList<int>{0, 0, 0, 2, 0}));
    QVERIFY(QFile::exists(image));
    QVERIFY(QFile::resize(image, 251 * 1048576));
    sync();
    QVERIFY(!QFile::exists(image));
    QVERIFY(QFile::exists(preview(file("b.dst"))));
}

void FileSyncTest::reconnectsByContentOnly()
{
    write("a.dst", DstDesign::square("Same"));
    sync();
    file("a.dst")->setNotes("mine");
    QVERIFY(QFile::remove(path("a.dst")));
    write("b.dst", DstDesign::square("Also")); // of the same size
    QCOMPARE(sync(), (QList<int>{1, 0, 0, 1, 0}));
    QVERIFY(file("b.dst")->notes().isEmpty());

    // One record cannot stand for two files; the other one comes in at the next run.
    QVERIFY(QFile::copy(path("b.dst"), path("c.dst")));
    QVERIFY(QFile::rename(path("b.dst"), path("d.dst")));
    QCOMPARE(sync(), (QList<int>{0, 0, 2, 0, 0}));
    QCOMPARE(m_project->files().size(), 1);
    QCOMPARE(sync(), (QList<int>{1, 0, 0, 0, 0}));
    QCOMPARE(m_project->files().size(), 2);
}

void FileSyncTest::prefersCopyWithUserData()
{
    for (const char *name : {"1.dst", "2.dst", "3.dst"})
        write(name, DstDesign::square());
    sync();
    file("2.dst")->setTags({"flowers"});
    for (const char *name : {"1.dst", "2.dst", "3.dst"})
        QVERIFY(QFile::rename(path(name), path(name) + ".dst"));
    QCOMPARE(sync(), (QList<int>{0, 0, 3, 2, 0}));
    QCOMPARE(m_project->files().constFirst()->tags(), QStringList{"flowers"});
}

QTEST_MAIN(FileSyncTest)
#include "tst_filesync.moc"
