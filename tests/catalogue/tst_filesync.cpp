#include "catalogue/records/IThread.h"
#include "catalogue/sync/FileSync.h"
#include "embroidery/EmbroideryIO.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include "support/ScriptedListener.h"
#include <memory>
#include <QImage>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

class FileSyncTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<CatalogueFolder>();
        m_project = QSharedPointer<Project>::create();
        m_project->setSmartFolders({m_folder->designs()}, QString());
        m_listener = ScriptedListener();
    }

    void cleanup()
    {
        m_project.clear();
        m_folder.reset();
    }

    void readsNewDesigns()
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
        QCOMPARE(design->name(), "First");
        QCOMPARE(design->designSize(), QSizeF(10.0, 10.0));
        QCOMPARE(design->stitchCount(), 8);
        QCOMPARE(design->contentHash(),
                 QCryptographicHash::hash(m_folder->read(path("b.dst")), QCryptographicHash::Md5));
        QCOMPARE(design->threads().size(), 2);
        QCOMPARE(design->threads().at(1)->color(), QColor(0, 255, 0));
        QCOMPARE(design->threads().at(1)->colorName(), "Green");
        QCOMPARE(QImage(preview(design)).size(), QSize(400, 400));
    }

    void doesNotReadWhatDidNotChange()
    {
        write("a.dst", DstDesign::square("Before"));
        sync();
        const QDateTime date = QFileInfo(path("a.dst")).lastModified();
        // Same date and size with other bytes: only a run that reads would notice.
        write("a.dst", DstDesign::square("Behind"));
        QVERIFY(CatalogueFolder::setDate(path("a.dst"), date));
        QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 0}));
        QCOMPARE(file("a.dst")->name(), "Before");
    }

    void keepsUserData_data()
    {
        const Rows<QString, bool, bool, QList<int>> row("newName", "newContent", "touch", "counts");
        row("rename", "other.dst", false, false, {0, 0, 1, 0, 0});
        row("move to another smart folder", "../more/a.dst", false, false, {0, 0, 1, 0, 0});
        row("touch", "a.dst", false, true, {0, 1, 0, 0, 0});
        row("change", "a.dst", true, true, {0, 1, 0, 0, 0});
        row("rename and touch", "b.dst", false, true, {0, 1, 1, 0, 0});
    }

    void keepsUserData()
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
        QCOMPARE(record->notes(), "for Ada");
        QVERIFY(record->isFavorite());
        // Only another content is read.
        QCOMPARE(record->name(), QString(newContent ? "Changed" : "not from the file"));
        QCOMPARE(record->designSize().width(), newContent ? 6.0 : 10.0);
        QVERIFY(QFile::exists(preview(record)));
        QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 0}));
    }

    void goesOnAfterDamagedDesigns()
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

    void changesNothingWhenScanIsAborted()
    {
        write("a.dst", DstDesign::square());
        write("b.dst", DstDesign::square("Stays"));
        sync();
        QVERIFY(QFile::remove(path("a.dst")));
        m_listener.onProceed = [this](const QString &) { m_listener.aborted = true; };
        QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 0}));
        QCOMPARE(m_project->files().size(), 2);
        QVERIFY(file("a.dst"));
    }

    void leavesBareRecordsWhenLoadingIsAborted()
    {
        write("a.dst", DstDesign::square("One"));
        write("b.dst", DstDesign::square("Two"));
        write("c.dst", DstDesign::square("Three"));
        // What is under way at that moment may come to its end or not.
        m_listener.onProceed = [this](const QString &text) {
            m_listener.aborted = text == QLatin1String("Loading b.dst") || m_listener.aborted;
        };
        QCOMPARE(sync(), (QList<int>{3, 0, 0, 0, 0}));
        QCOMPARE(m_listener.texts.constLast(), "Aborting...");
        QCOMPARE(file("a.dst")->stitchCount(), 8);
        const int unreached = file("b.dst")->contentHash().isEmpty() ? 2 : 1;
        QVERIFY(file("c.dst")->contentHash().isEmpty());

        m_listener = ScriptedListener();
        QCOMPARE(sync(), (QList<int>{0, unreached, 0, 0, 0}));
        QCOMPARE(file("c.dst")->name(), "Three");
    }

    void readsNextTimeWhatCannotBeReadNow()
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
        QCOMPARE(file("a.dst")->name(), "Before");
        m_listener = ScriptedListener();
        QCOMPARE(sync(), (QList<int>{0, 1, 0, 0, 0}));
        QCOMPARE(file("a.dst")->name(), "Changed");
#endif
    }

    void leavesOutWhatVanishesMeanwhile()
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
        QCOMPARE(file("b.dst")->name(), "Stays");
    }

    void doesNotReadWhatIsTooLarge()
    {
        write("a.dst", DstDesign::square());
        QVERIFY(QFile::resize(path("a.dst"), 17 * 1024 * 1024)); // sparse
        QCOMPARE(sync(), (QList<int>{1, 0, 0, 0, 1}));
        QVERIFY(file("a.dst")->contentHash().isEmpty());
        QCOMPARE(file("a.dst")->fileSize(), 17 * 1024 * 1024);
        // It is told each time, but nothing changes by it.
        QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 1}));
    }

    void tellsWhatItCannotLookInto()
    {
        write("a.dst", DstDesign::square());
        const QString missing = m_folder->design("missing");
        m_project->setSmartFolders({m_folder->designs(), missing}, QString());
        const QByteArray folder = QFile::encodeName(m_folder->designs());
        // A design, a picture and a folder.
        const QByteArray names[] = {folder + "/caf\xe9.DST", folder + "/caf\xe9.jpg",
                                    folder + "/\xff"};
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

    void keepsPreviewsInStep()
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

    void clearsUpAfterADeadWriter()
    {
        write("a.dst", DstDesign::square());
        sync();
        const QString left = m_folder->dataFile("previews/.hoopline-2147483647-0.part");
        QVERIFY(CatalogueFolder::write(left, "half a picture"));
        QCOMPARE(sync(), (QList<int>{0, 0, 0, 0, 0}));
        QVERIFY(!QFile::exists(left));
    }

    void reconnectsByContentOnly()
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

    void reconnectsEachTwin_data()
    {
        const Rows<QStringList, QStringList, QStringList> row("before", "after", "tagged");
        // Each file bears its own name as a tag, where there is one.
        row("folder renamed", {"x/1", "x/2", "y/1"}, {"z/2", "z/1", "y2/1"}, {"x/2", "x/1", "y/1"});
        row("all renamed", {"a1", "a2", "a3"}, {"b1", "b2", "b3"}, {"a1", "a2", "a3"});
        row("only one is left", {"-1", "2", "-3"}, {"4"}, {"2"});
        row("one more than before", {"1", "2"}, {"3", "4", "5"}, {"1", "2", ""});
    }

    void reconnectsEachTwin()
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

        const int gone = int(before.size());
        const int come = int(after.size());
        const int moved = qMin(gone, come);
        QCOMPARE(sync(), (QList<int>{come - moved, 0, moved, gone - moved, 0}));
        for (int i = 0; i < after.size(); ++i)
            QCOMPARE(file(after.at(i) + ".dst")->tags().join(' '), tagged.at(i));
    }

    void reconnectsNothingWhenAborted()
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
        QCOMPARE(file("b.dst")->notes(), "mine");
    }

    void doesNotDependOnTheNumberOfThreads()
    {
        QDirIterator samples(SAMPLES_DIR "/Flowers", QDir::Files);
        for (int i = 0; samples.hasNext(); ++i) {
            const QString sample = samples.next();
            QVERIFY(QFile::copy(sample, m_folder->design(samples.fileName())));
            if (i % 5 == 0)
                QVERIFY(QFile::copy(sample, m_folder->design("copy of " + samples.fileName())));
            if (i % 7 == 0)
                QVERIFY(
                    CatalogueFolder::write(m_folder->design(QString::number(i) + ".hus"), "junk"));
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

    void endsBesideAFileThatNeverAnswers()
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

private:
    /** All that a run leaves: the catalogue and the previews, by name. */
    QMap<QString, QByteArray> results(int threads)
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
            results["unreadable"] += file.path.toUtf8() + file.reason.toUtf8() + '\n';
        results["told"] = listener.texts.join('\n').toUtf8();
        m_project->save(m_folder->catalogueFile());
        QDirIterator files(m_folder->dataFile(QString()), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            results[files.fileName()] = CatalogueFolder::read(path);
        }
        return results;
    }

    void write(const char *name, const DstDesign &design)
    {
        QVERIFY(design.writeTo(path(name)));
    }

    /** How many records were added, updated, reconnected and removed, and how many unreadable. */
    QList<int> sync()
    {
        FileSync sync(m_project, &m_listener);
        sync.syncFilesWithDisk(Embroidery::EmbroideryIO::supportedFormats());
        const SyncCounts counts = sync.counts();
        return {counts.added, counts.updated, counts.reconnected, counts.removed,
                counts.unreadable};
    }

    QSharedPointer<IFile> file(const QString &name) const
    {
        const auto files = m_project->files();
        for (const auto &file : files) {
            if (file->absoluteFilePath() == m_folder->design(name))
                return file;
        }
        return {};
    }

    QString preview(const QSharedPointer<IFile> &file) const
    {
        return GlobalSettings().previewImagePath(file->contentHash());
    }
    QString path(const char *name) const
    {
        return m_folder->design(QLatin1String(name));
    }

    std::unique_ptr<CatalogueFolder> m_folder;
    QSharedPointer<Project> m_project;
    ScriptedListener m_listener;
};

QTEST_MAIN(FileSyncTest)
#include "tst_filesync.moc"
