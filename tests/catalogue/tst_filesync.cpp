#include "app/base/Error.h"
#include "catalogue/records/IThread.h"
#include "catalogue/sync/FileSync.h"
#include "embroidery/EmbroideryIO.h"
#include "properties/GUndoStack.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/ScriptedListener.h"
#include <memory>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QtTest>

class FileSyncTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void readsNewDesigns();
    void reportsEachFile();
    void doesNotReadWhatDidNotChange();
    void keepsUserData_data();
    void keepsUserData();
    void checksTouchedFilesWithoutParsing();
    void goesOnAfterDamagedDesigns();
    void keepsMetaDataOfDesignThatGotDamaged();
    void changesNothingWhenScanIsAborted();
    void leavesBareRecordsWhenLoadingIsAborted();
    void failsOnFileThatVanishesMeanwhile();
    void rendersLostPreviewAgain();
    void removesOrphansBeyondLimit_data();
    void removesOrphansBeyondLimit();
    void reconnectsByContentOnly();
    void removesFilesOfMissingFolder();

private:
    SyncCounts sync(int maxCacheSizeMB = 250);
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

static QList<int> asList(const SyncCounts &c)
{
    return {c.added, c.updated, c.reconnected, c.removed, c.unreadable};
}

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

SyncCounts FileSyncTest::sync(int maxCacheSizeMB)
{
    FileSync sync(m_project, &m_listener);
    sync.setMaxCacheSizeMB(maxCacheSizeMB);
    sync.syncFilesWithDisk(Embroidery::EmbroideryIO::supportedFormats());
    return sync.counts();
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
    QVERIFY(DstDesign::square("First").writeTo(path("b.dst")));
    QVERIFY(DstDesign::square("Second", 50).writeTo(path("deep/er/A.DST")));
    QVERIFY(DstDesign::square().writeTo(path("notes.txt")));
    QVERIFY(DstDesign::square().writeTo(path("dst")));
    QVERIFY(DstDesign::square().writeTo(path(".hidden.dst")));

    QCOMPARE(asList(sync()), (QList<int>{2, 0, 0, 0, 0}));
    QCOMPARE(m_project->files().size(), 2);
    const auto design = file("b.dst");
    QVERIFY(design && file("deep/er/A.DST"));
    QCOMPARE(design->name(), QStringLiteral("First"));
    QCOMPARE(design->designSize(), QSizeF(10.0, 10.0));
    QCOMPARE(design->stitchCount(), 8);
    QCOMPARE(design->contentHash(), FileSync::calculateContentHash(m_folder->read(path("b.dst"))));
    QCOMPARE(design->contentHash().size(), 16);
    QCOMPARE(design->fileSize(), 512 + 8 * 3);
    QCOMPARE(qint64(design->modificationDate()),
             QFileInfo(path("b.dst")).lastModified().toSecsSinceEpoch());
    QCOMPARE(design->threads().size(), 2);
    QCOMPARE(design->threads().at(0)->color(), QColor(255, 0, 0));
    QCOMPARE(design->threads().at(1)->colorName(), QStringLiteral("Green"));
    QCOMPARE(QImage(preview(design)).size(), QSize(400, 400));
    QVERIFY(!m_project->undoStack()->canUndo() || m_project->undoStack()->count() == 1);
}

void FileSyncTest::reportsEachFile()
{
    QVERIFY(DstDesign::square().writeTo(path("a.dst")));
    QVERIFY(DstDesign::square().writeTo(path("b.dst")));
    sync();
    QCOMPARE(m_listener.steps, (QList<int>{10000, 2}));
    QCOMPARE(m_listener.texts.mid(1), (QStringList{"Loading a.dst", "Loading b.dst"}));
}

void FileSyncTest::doesNotReadWhatDidNotChange()
{
    QVERIFY(DstDesign::square("Before").writeTo(path("a.dst")));
    sync();
    const QDateTime date = QFileInfo(path("a.dst")).lastModified();
    // Same date and size with other bytes: only a run that reads would notice.
    QVERIFY(DstDesign::square("Behind").writeTo(path("a.dst")));
    QVERIFY(CatalogueFolder::setDate(path("a.dst"), date));
    QCOMPARE(asList(sync()), (QList<int>{0, 0, 0, 0, 0}));
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
    QVERIFY(DstDesign::square().writeTo(path("a.dst")));
    sync();
    auto record = file("a.dst");
    record->setTags({"flowers"});
    record->setNotes("for Ada");
    record->setFavorite(true);

    const QString newPath = QDir::cleanPath(m_folder->design(newName));
    if (newPath != path("a.dst"))
        QVERIFY(QFile::rename(path("a.dst"), newPath));
    if (newContent)
        QVERIFY(DstDesign::square("Changed", 60).writeTo(newPath));
    if (touch)
        QVERIFY(CatalogueFolder::setDate(newPath, QDateTime::currentDateTime().addDays(-1)));
    QTEST(asList(sync()), "counts");

    QCOMPARE(m_project->files().size(), 1);
    record = m_project->files().constFirst();
    QCOMPARE(record->absoluteFilePath(), newPath);
    QCOMPARE(record->tags(), QStringList{"flowers"});
    QCOMPARE(record->notes(), QStringLiteral("for Ada"));
    QVERIFY(record->isFavorite());
    QCOMPARE(record->name(), QString(newContent ? "Changed" : "Rose"));
    QCOMPARE(record->designSize().width(), newContent ? 6.0 : 10.0);
    QVERIFY(QFile::exists(preview(record)));
    QCOMPARE(asList(sync()), (QList<int>{0, 0, 0, 0, 0}));
}

void FileSyncTest::checksTouchedFilesWithoutParsing()
{
    QVERIFY(DstDesign::square().writeTo(path("a.dst")));
    sync();
    file("a.dst")->setName("not from the file");
    QVERIFY(CatalogueFolder::setDate(path("a.dst"), QDateTime::currentDateTime().addDays(-3)));
    QCOMPARE(asList(sync()), (QList<int>{0, 1, 0, 0, 0}));
    QCOMPARE(file("a.dst")->name(), QStringLiteral("not from the file"));
}

void FileSyncTest::goesOnAfterDamagedDesigns()
{
    QVERIFY(CatalogueFolder::write(path("a.pes"), "#PES"));
    QVERIFY(CatalogueFolder::write(path("b.hus"), "junk"));
    QVERIFY(DstDesign::square().writeTo(path("c.dst")));
    QCOMPARE(asList(sync()), (QList<int>{3, 0, 0, 0, 2}));
    QVERIFY(file("a.pes") && file("b.hus"));
    QCOMPARE(file("a.pes")->designSize(), QSizeF(-1, -1));
    QCOMPARE(file("a.pes")->fileSize(), 4);
    QCOMPARE(file("c.dst")->stitchCount(), 8);
    // They have no preview and are tried again each time.
    QCOMPARE(asList(sync()), (QList<int>{0, 2, 0, 0, 2}));
}

void FileSyncTest::keepsMetaDataOfDesignThatGotDamaged()
{
    QVERIFY(DstDesign::square("Whole").writeTo(path("a.dst")));
    sync();
    QVERIFY(QFile::rename(path("a.dst"), path("a.hus")));
    m_project->files().constFirst()->setAbsoluteFilePath(path("a.hus"));
    QVERIFY(CatalogueFolder::write(path("a.hus"), "junk"));
    QCOMPARE(asList(sync()), (QList<int>{0, 1, 0, 0, 1}));
    QCOMPARE(file("a.hus")->name(), QStringLiteral("Whole"));
    QCOMPARE(file("a.hus")->stitchCount(), 8);
}

void FileSyncTest::changesNothingWhenScanIsAborted()
{
    QVERIFY(DstDesign::square().writeTo(path("a.dst")));
    sync();
    QVERIFY(QFile::remove(path("a.dst")));
    QVERIFY(DstDesign::square().writeTo(path("b.dst")));
    m_listener.onProceed = [this](const QString &) { m_listener.aborted = true; };
    QCOMPARE(asList(sync()), (QList<int>{0, 0, 0, 0, 0}));
    QCOMPARE(m_project->files().size(), 1);
    QVERIFY(file("a.dst"));
}

void FileSyncTest::leavesBareRecordsWhenLoadingIsAborted()
{
    QVERIFY(DstDesign::square("One").writeTo(path("a.dst")));
    QVERIFY(DstDesign::square("Two").writeTo(path("b.dst")));
    m_listener.onProceed = [this](const QString &text) {
        m_listener.aborted = text == QLatin1String("Loading a.dst") || m_listener.aborted;
    };
    QCOMPARE(asList(sync()), (QList<int>{2, 0, 0, 0, 0}));
    QCOMPARE(m_listener.texts.constLast(), QStringLiteral("Aborting..."));
    QCOMPARE(file("a.dst")->stitchCount(), 8);
    QVERIFY(file("b.dst")->contentHash().isEmpty());
    QCOMPARE(file("b.dst")->fileSize(), 0);

    m_listener = ScriptedListener();
    QCOMPARE(asList(sync()), (QList<int>{0, 1, 0, 0, 0}));
    QCOMPARE(file("b.dst")->name(), QStringLiteral("Two"));
}

void FileSyncTest::failsOnFileThatVanishesMeanwhile()
{
    QVERIFY(DstDesign::square().writeTo(path("a.dst")));
    m_listener.onProceed = [this](const QString &text) {
        if (text.startsWith(QLatin1String("Loading")))
            QFile::remove(path("a.dst"));
    };
    QVERIFY_EXCEPTION_THROWN(sync(), Error);
}

void FileSyncTest::rendersLostPreviewAgain()
{
    QVERIFY(DstDesign::square().writeTo(path("a.dst")));
    QVERIFY(DstDesign::square().writeTo(path("twin.dst")));
    sync();
    const QString image = preview(file("a.dst"));
    QCOMPARE(preview(file("twin.dst")), image);
    QVERIFY(QFile::remove(image));
    QCOMPARE(asList(sync()), (QList<int>{0, 2, 0, 0, 0}));
    QVERIFY(QFile::exists(image));
}

void FileSyncTest::removesOrphansBeyondLimit_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<qint64>("otherBytes");
    QTest::addColumn<bool>("kept");
    constexpr qint64 mb = 1048576;
    QTest::newRow("at the limit") << 250 << 250 * mb << true;
    QTest::newRow("above it") << 250 << 251 * mb << false;
    QTest::newRow("no limit keeps none") << 0 << qint64(0) << false;
}

void FileSyncTest::removesOrphansBeyondLimit()
{
    QFETCH(int, limit);
    QFETCH(qint64, otherBytes);
    QFETCH(bool, kept);
    QVERIFY(DstDesign::square("Goes").writeTo(path("a.dst")));
    QVERIFY(DstDesign::square("Stays").writeTo(path("b.dst")));
    sync();
    const QString orphan = preview(file("a.dst"));
    const QString needed = preview(file("b.dst"));
    QVERIFY(QFile::remove(path("a.dst")));
    if (otherBytes > 0)
        QVERIFY(QFile::resize(orphan, otherBytes)); // sparse
    QCOMPARE(asList(sync(limit)), (QList<int>{0, 0, 0, 1, 0}));
    QCOMPARE(QFile::exists(orphan), kept);
    QVERIFY(QFile::exists(needed));
}

void FileSyncTest::reconnectsByContentOnly()
{
    QVERIFY(DstDesign::square("Same").writeTo(path("a.dst")));
    sync();
    file("a.dst")->setNotes("mine");
    QVERIFY(QFile::remove(path("a.dst")));
    QVERIFY(DstDesign::square("Also").writeTo(path("b.dst"))); // of the same size
    QCOMPARE(asList(sync()), (QList<int>{1, 0, 0, 1, 0}));
    QVERIFY(file("b.dst")->notes().isEmpty());

    // One record cannot stand for two files; the other one comes in at the next run.
    QVERIFY(QFile::copy(path("b.dst"), path("c.dst")));
    QVERIFY(QFile::rename(path("b.dst"), path("d.dst")));
    QCOMPARE(asList(sync()), (QList<int>{0, 0, 2, 0, 0}));
    QCOMPARE(m_project->files().size(), 1);
    QCOMPARE(asList(sync()), (QList<int>{1, 0, 0, 0, 0}));
    QCOMPARE(m_project->files().size(), 2);
}

void FileSyncTest::removesFilesOfMissingFolder()
{
    QVERIFY(DstDesign::square().writeTo(path("a.dst")));
    sync();
    m_project->setSmartFolders({m_folder->design("gone")}, QString());
    QCOMPARE(asList(sync()), (QList<int>{0, 0, 0, 1, 0}));
    QVERIFY(m_project->files().isEmpty());
}

QTEST_MAIN(FileSyncTest)
#include "tst_filesync.moc"
