#include "catalogue/records/IThread.h"
#include "catalogue/sync/FileSync.h"
#include "embroidery/EmbroideryIO.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/ScriptedListener.h"
#include <memory>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

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
    void leavesOutWhatVanishesMeanwhile();
    void doesNotReadWhatIsTooLarge();
    void tellsWhatItCannotLookInto();
    void keepsPreviewsInStep();
    void clearsUpAfterADeadWriter();
    void reconnectsByContentOnly();
    void reconnectsEachTwin_data();
    void reconnectsEachTwin();
    void reconnectsNothingWhenAborted();
    void doesNotDependOnTheNumberOfThreads();
    void endsBesideAFileThatNeverAnswers();

private:
    /** All that a run leaves: the catalogue and the previews, by name. */
    QMap<QString, QByteArray> results(int threads);
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
    write("c.dst", DstDesign::square("Three"));
    // What is under way at that moment may come to its end or not.
    m_listener.onProceed = [this](const QString &text) {
        m_listener.aborted = text == QLatin1String("Loading b.dst") || m_listener.aborted;
    };
    QCOMPARE(sync(), (QList<int>{3, 0, 0, 0, 0}));
    QCOMPARE(m_listener.texts.constLast(), QStringLiteral("Aborting..."));
    QCOMPARE(file("a.dst")->stitchCount(), 8);
    const int unreached = file("b.dst")->contentHash().isEmpty() ? 2 : 1;
    QVERIFY(file("c.dst")->contentHash().isEmpty());

    m_listener = ScriptedListener();
    QCOMPARE(sync(), (QList<int>{0, unreached, 0, 0, 0}));
    QCOMPARE(file("c.dst")->name(), QStringLiteral("Three"));
}

void FileSyncTest::readsNextTimeWhatCannotBeReadNow()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("The sanitizer needs a descriptor to look at an exception, and finds none.");
#else
    write("a.dst", DstDesign::square("Before"));
    sync();
    write("a.dst", DstDesign::square("Changed", 60).stitch(1, 1));
    // Without a free descriptor a file can be looked at, but not opened, whoever runs the test.
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &before), 0);
    m_listener.onSetSteps = [&before](int steps) {
        const rlimit none{0, before.rlim_max};
        if (steps == 1)
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

void FileSyncTest::leavesOutWhatVanishesMeanwhile()
{
    write("a.dst", DstDesign::square("Goes"));
    write("b.dst", DstDesign::square("Stays"));
    m_listener.onSetSteps = [this](int steps) {
        if (steps == 2)
            QFile::remove(path("a.dst"));
    };
    FileSync sync(m_project, &m_listener);
    sync.syncFilesWithDisk(Embroidery::EmbroideryIO::supportedFormats());
    QCOMPARE(sync.counts().added, 1);
    QCOMPARE(sync.counts().unreadable, 1);
    QCOMPARE(sync.unreadableFiles().constFirst().path, path("a.dst"));
    QVERIFY(sync.unreadableFiles().constFirst().reason.contains(QLatin1String("No such file")));
    QVERIFY(!sync.unreadableFiles().constFirst().damaged);
    QVERIFY(!file("a.dst"));
    QCOMPARE(file("b.dst")->name(), QStringLiteral("Stays"));
}

void FileSyncTest::doesNotReadWhatIsTooLarge()
{
    write("a.dst", DstDesign::square());
    QVERIFY(QFile::resize(path("a.dst"), 17 * 1024 * 1024)); // sparse
    QCOMPARE(sync(), (QList<int>{1, 0, 0, 0, 1}));
    QVERIFY(file("a.dst")->contentHash().isEmpty());
    QCOMPARE(file("a.dst")->fileSize(), 17 * 1024 * 1024);
    // It is told each time, but nothing changes by it.
    QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 1}));
}

void FileSyncTest::tellsWhatItCannotLookInto()
{
    write("a.dst", DstDesign::square());
    const QString missing = m_folder->design("missing");
    m_project->setSmartFolders({m_folder->designs(), missing}, QString());
    const QByteArray folder = QFile::encodeName(m_folder->designs());
    // A design, a picture and a folder.
    const QByteArray names[] = {folder + "/caf\xe9.DST", folder + "/caf\xe9.jpg", folder + "/\xff"};
    for (const QByteArray &name : names)
        QCOMPARE(::mkdir(name.constData(), 0777), 0);
    FileSync sync(m_project, &m_listener);
    sync.syncFilesWithDisk(Embroidery::EmbroideryIO::supportedFormats());
    for (const QByteArray &name : names)
        QCOMPARE(::rmdir(name.constData()), 0);
    const QVector<SkippedEntry> skipped = sync.report().skipped;
    QCOMPARE(skipped.size(), 3);
    QCOMPARE(skipped.at(2).kind, SkippedEntry::MissingFolder);
    QCOMPARE(skipped.at(2).path, missing);
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
    const QDateTime date = QFileInfo(path("d.dst")).lastModified();
    QVERIFY(CatalogueFolder::setDate(path("c.dst"), date));
    QCOMPARE(sync(), (QList<int>{0, 0, 2, 0, 0}));
    QCOMPARE(m_project->files().size(), 1);
    QCOMPARE(sync(), (QList<int>{1, 0, 0, 0, 0}));
    QCOMPARE(m_project->files().size(), 2);
}

void FileSyncTest::reconnectsEachTwin_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<QStringList>("tagged");
    // Each file bears its own name as a tag, where there is one.
    QTest::newRow("folder renamed")
        << QStringList{"x/1", "x/2", "y/1"} << QStringList{"z/2", "z/1", "y2/1"}
        << QStringList{"x/2", "x/1", "y/1"};
    QTest::newRow("all renamed") << QStringList{"a1", "a2", "a3"} << QStringList{"b1", "b2", "b3"}
                                 << QStringList{"a1", "a2", "a3"};
    QTest::newRow("only one is left")
        << QStringList{"-1", "2", "-3"} << QStringList{"4"} << QStringList{"2"};
    QTest::newRow("one more than before")
        << QStringList{"1", "2"} << QStringList{"3", "4", "5"} << QStringList{"1", "2", ""};
}

void FileSyncTest::reconnectsEachTwin()
{
    QFETCH(QStringList, before);
    QFETCH(QStringList, after);
    QFETCH(QStringList, tagged);
    // A later date would count as an update, whenever the clock has gone on to the next second.
    const QDateTime date = QDateTime::currentDateTime();
    const auto make = [this, date](const QString &name) {
        const QString design = m_folder->design(name) + ".dst";
        QVERIFY(QDir().mkpath(QFileInfo(design).path()));
        QVERIFY(DstDesign::square().writeTo(design));
        QVERIFY(CatalogueFolder::setDate(design, date));
    };
    for (const QString &name : before)
        make(name);
    sync();
    for (const QString &name : before) {
        if (!name.startsWith('-'))
            file(name + ".dst")->setTags({name});
    }
    QVERIFY(QDir(m_folder->designs()).removeRecursively());
    for (const QString &name : after)
        make(name);

    const int moved = qMin(before.size(), after.size());
    QCOMPARE(sync(), (QList<int>{after.size() - moved, 0, moved, before.size() - moved, 0}));
    for (int i = 0; i < after.size(); ++i)
        QCOMPARE(file(after.at(i) + ".dst")->tags().join(' '), tagged.at(i));
}

void FileSyncTest::reconnectsNothingWhenAborted()
{
    write("a.dst", DstDesign::square("Same"));
    sync();
    file("a.dst")->setNotes("mine");
    QVERIFY(QFile::rename(path("a.dst"), path("b.dst")));
    m_listener.onProceed = [this](const QString &text) {
        m_listener.aborted = text.startsWith(QLatin1String("Looking"));
    };
    QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 0}));
    QVERIFY(m_listener.aborted);
    QVERIFY(file("a.dst"));
    m_listener = ScriptedListener();
    QCOMPARE(sync(), (QList<int>{0, 0, 1, 0, 0}));
    QCOMPARE(file("b.dst")->notes(), QStringLiteral("mine"));
}

QMap<QString, QByteArray> FileSyncTest::results(int threads)
{
    QDir(m_folder->dataFile(QString())).removeRecursively();
    m_project = QSharedPointer<Project>::create();
    m_project->setSmartFolders({m_folder->designs()}, QString());
    ScriptedListener listener;
    FileSync sync(m_project, &listener);
    sync.setThreadCount(threads);
    sync.syncFilesWithDisk(Embroidery::EmbroideryIO::supportedFormats());

    QMap<QString, QByteArray> results;
    for (const UnreadableFile &file : sync.unreadableFiles())
        results[QStringLiteral("unreadable")] += file.path.toUtf8() + file.reason.toUtf8() + '\n';
    results[QStringLiteral("told")] = listener.texts.join('\n').toUtf8();
    m_project->save(m_folder->catalogueFile());
    QDirIterator files(m_folder->dataFile(QString()), QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        results[files.fileName()] = CatalogueFolder::read(path);
    }
    return results;
}

void FileSyncTest::doesNotDependOnTheNumberOfThreads()
{
    QDirIterator samples(SAMPLES_DIR "/Flowers", QDir::Files);
    for (int i = 0; samples.hasNext(); ++i) {
        const QString sample = samples.next();
        QVERIFY(QFile::copy(sample, m_folder->design(samples.fileName())));
        if (i % 5 == 0)
            QVERIFY(QFile::copy(sample, m_folder->design("copy of " + samples.fileName())));
        if (i % 7 == 0)
            QVERIFY(CatalogueFolder::write(m_folder->design(QString::number(i) + ".hus"), "junk"));
    }
    // The same bytes make different pictures by their names; that of the last file stays.
    for (const char *name : {"same.exp", "same.pec", "same.sew", "same.dst"}) {
        DstDesign design;
        for (int i = 0; i < 300; ++i)
            design.stitch(i % 2 ? 90 : -90, 3);
        write(name, design);
    }
    const auto expected = results(1);
    QVERIFY(expected.size() > 40);
    for (const int threads : {2, 3, 8}) {
        const auto actual = results(threads);
        QCOMPARE(actual.keys(), expected.keys());
        for (const QString &name : expected.keys())
            QVERIFY2(actual.value(name) == expected.value(name), qPrintable(name));
    }
}

void FileSyncTest::clearsUpAfterADeadWriter()
{
    write("a.dst", DstDesign::square());
    sync();
    const QString left = m_folder->dataFile("previews/.hoopline-2147483647-0.part");
    QVERIFY(CatalogueFolder::write(left, "half a picture"));
    QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 0}));
    QVERIFY(!QFile::exists(left));
}

void FileSyncTest::endsBesideAFileThatNeverAnswers()
{
    write("a.dst", DstDesign::square("One"));
    write("b.dst", DstDesign::square("Two"));
    // A pipe that nobody writes to takes the place of the file once it was found.
    m_listener.onSetSteps = [this](int steps) {
        if (steps == 2) {
            QFile::remove(path("a.dst"));
            ::mkfifo(QFile::encodeName(path("a.dst")).constData(), 0666);
        }
    };
    m_listener.onWait = [this] { m_listener.aborted = true; };
    QCOMPARE(sync(), (QList<int>{2, 0, 0, 0, 0}));
    QVERIFY(file("a.dst")->contentHash().isEmpty());
    // The thread that was left behind can end.
    QFile pipe(path("a.dst"));
    QVERIFY(pipe.open(QIODevice::ReadWrite));
}

QTEST_MAIN(FileSyncTest)
#include "tst_filesync.moc"
