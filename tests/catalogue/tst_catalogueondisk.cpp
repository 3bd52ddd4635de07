#include "catalogue/backups/BackupFolder.h"
#include "catalogue/Catalogue.h"
#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/records/IFile.h"
#include "catalogue/sync/CatalogueFile.h"
#include "catalogue/sync/ProjectController.h"
#include "properties/undo/GUndoStack.h"
#include "support/CatalogueFolder.h"
#include "support/DriveFixture.h"
#include "support/FullDisk.h"
#include "support/Rows.h"

#include <future>
#include <memory>
#include <QtTest>

const QByteArray newerCatalogue = "<hoopline_organizer version='9.0'><new/></hoopline_organizer>";
const QByteArray damagedCatalogue = catalogueWith("x").chopped(10);

/** The catalogue between memory and a disk that others write to, and that fails. */
class TestCatalogueOnDisk : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<CatalogueFolder>();
        m_controller = std::make_unique<ProjectController>();
        QVERIFY(QDir().mkpath(QFileInfo(path()).path()));
    }

    void cleanup()
    {
        m_controller.reset();
        m_folder.reset();
    }

    void holdsNoBytesOfWhatItHasRead()
    {
        put(catalogueWith("x"), 0);
        CatalogueFile file(path());
        const QByteArray bytes = file.read();
        QVERIFY(!file.lastSeenHash().isEmpty());
        QVERIFY(bytes.isDetached());
    }

    void leavesAloneWhatItCannotUse_data()
    {
        const Rows<QByteArray> row("bytes");
        row("newer version", newerCatalogue);
        row("newer version, cut", newerCatalogue.chopped(5));
        // Stands for whatever the system refuses, whoever runs the test.
        row("unreadable", {});
    }

    void leavesAloneWhatItCannotUse()
    {
        QFETCH(QByteArray, bytes);
        if (bytes.isEmpty())
            QVERIFY(QDir().mkpath(path() + "/x"));
        else
            put(bytes, 0);
        QVERIFY_EXCEPTION_THROWN(m_controller->loadOrCreateProject(), CatalogueUnusableError);
        QCOMPARE(saved(), bytes);
        QCOMPARE(dataFiles(), QStringList("hoopline-organizer.xml"));
        // Trying again is enough once it can be used.
        QVERIFY(QDir(path()).removeRecursively() || QFile::remove(path()));
        put(catalogueWith("back"), 0);
        m_controller->loadOrCreateProject();
        QCOMPARE(tags(), QStringList("back"));
    }

    void keepsADamagedCatalogue()
    {
        put(damagedCatalogue, 0);
        m_controller->loadOrCreateProject();
        const auto kept = m_controller->takeKept();
        QCOMPARE(kept.size(), 1);
        QCOMPARE(kept.first().fate, CatalogueFile::Damaged);
        QCOMPARE(kept.first().designs, 1);
        QVERIFY(m_controller->takeKept().isEmpty());
        const QRegularExpression name("^hoopline-organizer\\.damaged-\\d{8}-\\d{6}\\.xml$");
        QVERIFY2(name.match(QFileInfo(kept.first().file).fileName()).hasMatch(),
                 qPrintable(kept.first().file));
        QCOMPARE(BackupFolder::read(kept.first().file), damagedCatalogue);
        QCOMPARE(m_controller->project()->files().first()->notes(), QString("precious"));

        ProjectController again;
        again.loadOrCreateProject();
        QVERIFY(again.takeKept().isEmpty());
        QCOMPARE(again.project()->files().size(), 1);
        // The same damage is kept once, another beside it, also within the same second.
        for (const QByteArray &bytes : {damagedCatalogue, damagedCatalogue.chopped(1)}) {
            put(bytes, 0);
            again.loadOrCreateProject();
        }
        QCOMPARE(dataFiles().size(), 3);
        QCOMPARE(BackupFolder::read(kept.first().file), damagedCatalogue);
    }

    void replacesNothingThatItCannotKeep()
    {
        put(damagedCatalogue, 0);
        {
            const FullDisk disk;
            QVERIFY_EXCEPTION_THROWN(m_controller->loadOrCreateProject(), CatalogueUnsavedError);
        }
        QCOMPARE(saved(), damagedCatalogue);
        QCOMPARE(dataFiles(), QStringList("hoopline-organizer.xml"));
    }

    void missesTheDriveOfItsFolder()
    {
        const QString drive = m_folder->dataFile("drive");
        GlobalSettings().setApplicationDataPath(drive + "/hoopline");
        ProjectController controller;
        QVERIFY_EXCEPTION_THROWN(controller.loadOrCreateProject(), CatalogueFolderMissingError);
        QVERIFY(!QFile::exists(drive));
        QVERIFY(QDir().mkpath(drive));
        controller.loadOrCreateProject();
        QVERIFY(QFile::exists(controller.projectFilePath()));
    }

    void writesNothingBesideAPulledDrive()
    {
        DriveFixture drive(DriveFixture::InMemory);
        if (!drive.isMounted())
            QSKIP("Nothing can be mounted here.");
        GlobalSettings().setApplicationDataPath(drive.path());
        ProjectController controller;
        controller.loadOrCreateProject();
        controller.project()->addTag("edited");
        QVERIFY(drive.pull());
        QVERIFY_EXCEPTION_THROWN(controller.saveProjectIfModified(), CatalogueUnsavedError);
        QVERIFY(!QFile::exists(controller.projectFilePath()));
    }

    void createsAFolderThatIsNew()
    {
        QVERIFY(QDir(QFileInfo(path()).path()).removeRecursively());
        m_controller->loadOrCreateProject();
        QVERIFY(!saved().isEmpty());
    }

    void keepsEditsBeforeItTakesOverAnother()
    {
        m_controller->loadOrCreateProject();
        edit();
        put(catalogueWith("other"), 5);
        m_controller->reloadProjectIfNewerOnDisk();
        QCOMPARE(tags(), QStringList("other"));
        QVERIFY(!isModified());
        const auto kept = m_controller->takeKept();
        QCOMPARE(kept.size(), 1);
        QCOMPARE(kept.first().fate, CatalogueFile::Unsaved);
        QVERIFY(BackupFolder::read(kept.first().file).contains("edited"));
        // Without such edits nothing has to be kept.
        put(catalogueWith("third"), 5);
        m_controller->reloadProjectIfNewerOnDisk();
        QCOMPARE(tags(), QStringList("third"));
        QVERIFY(m_controller->takeKept().isEmpty());
    }

    void outlivesDamageFromOutside_data()
    {
        const Rows<QByteArray> row("bytes");
        row("malformed", damagedCatalogue);
        row("empty", "");
        row("strange record", "<hoopline_organizer><files><strange/></files></hoopline_organizer>");
    }

    void outlivesDamageFromOutside()
    {
        QFETCH(QByteArray, bytes);
        put(catalogueWith("mine"), 0);
        m_controller->loadOrCreateProject();
        put(bytes, 5);
        QVERIFY_EXCEPTION_THROWN(m_controller->reloadProjectIfNewerOnDisk(), CatalogueDamagedError);
        QCOMPARE(tags(), QStringList("mine"));
        QCOMPARE(m_controller->project()->files().size(), 1);
        // It may have been half written only.
        put(catalogueWith("whole"), 1);
        m_controller->reloadProjectIfNewerOnDisk();
        QCOMPARE(tags(), QStringList("whole"));

        put(bytes, 5);
        QVERIFY_EXCEPTION_THROWN(m_controller->reloadProjectIfNewerOnDisk(), CatalogueDamagedError);
        QVERIFY(isModified());
        m_controller->reloadProjectIfNewerOnDisk();
        QVERIFY(!isModified());
        QVERIFY(saved().contains("<string>whole</string>"));
        const auto kept = m_controller->takeKept();
        QCOMPARE(BackupFolder::read(kept.last().file), bytes);
    }

    void keepsWhatStandsInTheWayOfASave_data()
    {
        const Rows<QByteArray, int> row("bytes", "fate");
        constexpr int refused = -1;
        row("another catalogue", catalogueWith("other"), int(CatalogueFile::Replaced));
        row("damaged", damagedCatalogue, int(CatalogueFile::Damaged));
        row("newer version", newerCatalogue, refused);
        row("unreadable", {}, refused);
    }

    void keepsWhatStandsInTheWayOfASave()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, fate);
        m_controller->loadOrCreateProject();
        edit();
        QVERIFY(QFile::remove(path()));
        if (bytes.isEmpty())
            QVERIFY(QDir().mkpath(path() + "/x"));
        else // Older than the one it replaces: a backup, say.
            QVERIFY(CatalogueFolder::write(path(), bytes) &&
                    CatalogueFolder::setDate(path(), QDateTime::currentDateTime().addDays(-1)));
        if (fate < 0) {
            QVERIFY_EXCEPTION_THROWN(m_controller->saveProjectIfModified(), CatalogueUnsavedError);
            QVERIFY(isModified());
            QCOMPARE(saved(), bytes);
            m_controller->saveCopy(m_folder->dataFile("copy.xml"));
            QVERIFY(CatalogueFolder::read(m_folder->dataFile("copy.xml")).contains("edited"));
            return;
        }
        m_controller->saveProjectIfModified();
        QVERIFY(saved().contains("edited"));
        const auto kept = m_controller->takeKept();
        QCOMPARE(kept.size(), 1);
        QCOMPARE(int(kept.first().fate), fate);
        QCOMPARE(BackupFolder::read(kept.first().file), bytes);
        // What it has written itself, it needs not keep.
        m_controller->project()->addTag("again");
        QFile(path()).setFileTime(QDateTime::currentDateTime().addDays(-1),
                                  QFileDevice::FileModificationTime);
        m_controller->saveProjectIfModified();
        QVERIFY(m_controller->takeKept().isEmpty());
    }

    void savesWhenItsFolderIsBack_data()
    {
        const Rows<bool> row("beside");
        row("at once", false);
        row("beside", true);
    }

    void savesWhenItsFolderIsBack()
    {
        QFETCH(bool, beside);
        const auto save = [&] {
            if (!beside)
                return m_controller->saveProjectIfModified();
            m_controller->beginSave([] {});
            m_controller->finishSave();
        };
        m_controller->loadOrCreateProject();
        edit();
        const QString folder = QFileInfo(path()).path();
        QVERIFY(QDir().rename(folder, folder + " unplugged"));
        QVERIFY_EXCEPTION_THROWN(save(), CatalogueUnsavedError);
        QVERIFY(m_controller->isModified());
        QVERIFY(!QFile::exists(folder));
        QVERIFY(QDir().rename(folder + " unplugged", folder));
        save();
        QVERIFY(!m_controller->isModified());
        QVERIFY(saved().contains("edited"));
    }

    void savesBesideWhatIsEdited()
    {
        m_controller->loadOrCreateProject();
        QStringList many;
        for (int i = 0; i < 20000; ++i)
            many += QStringLiteral("tag %1").arg(i);
        m_controller->project()->setAllTags(many);
        edit();
        std::promise<void> written;
        m_controller->beginSave([&] { written.set_value(); });
        QVERIFY(m_controller->isSaving());
        QVERIFY(m_controller->isModified());
        QVERIFY(!m_controller->isNewerOnDisk());
        // The file holds what was there when it was begun.
        m_controller->project()->addTag("later");
        written.get_future().wait();
        QVERIFY(!m_controller->isNewerOnDisk());
        m_controller->finishSave();
        QVERIFY(saved().contains("edited"));
        QVERIFY(!saved().contains("later"));
        QVERIFY(m_controller->backups().hasDay(QDate::currentDate()));
        QVERIFY(m_controller->isModified());
        QVERIFY(!m_controller->isNewerOnDisk());
        // Whoever needs it on the disk waits, also for a second one.
        m_controller->beginSave([] {});
        m_controller->project()->addTag("last");
        m_controller->saveProjectIfModified();
        QVERIFY(saved().contains("later"));
        QVERIFY(saved().contains("last"));
        QVERIFY(!m_controller->isModified());
        m_controller->beginSave([] { qFatal("there is nothing to be saved"); });
        QVERIFY(!m_controller->isSaving());
        // The end of the program waits, too.
        m_controller->project()->addTag("in the end");
        m_controller->beginSave([] {});
        m_controller.reset();
        QVERIFY(saved().contains("in the end"));
    }

    void keepsOthersOut()
    {
        constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        const auto isPrivate = [&](const QString &file) {
            return (QFile::permissions(file) & others) == 0;
        };
        const QString folder = QFileInfo(path()).path();
        // Both as an older version has left them, and made anew.
        put(catalogueWith("x"), 0);
        QVERIFY(QFile::setPermissions(path(), QFile::permissions(path()) | QFile::ReadOther));
        QVERIFY(QFile::setPermissions(folder, QFile::permissions(folder) | others));
        QVERIFY(!isPrivate(path()) && !isPrivate(folder));
        for (int i = 0; i < 2; ++i) {
            m_controller->loadOrCreateProject();
            QVERIFY(isPrivate(path()));
            QVERIFY(isPrivate(folder));
            QVERIFY(QDir(folder).removeRecursively());
            m_controller = std::make_unique<ProjectController>();
        }
    }

private:
    QString path() const { return m_folder->catalogueFile(); }
    QByteArray saved() const { return CatalogueFolder::read(path()); }

    QStringList dataFiles() const
    {
        const QStringList all = QFileInfo(path()).dir().entryList(QDir::AllEntries | QDir::Hidden |
                                                                  QDir::NoDotAndDotDot);
        // The second memory comes and goes as it likes.
        return all.filter(QRegularExpression("^(?!user-data\\.)"));
    }

    /** Another program's file, so many seconds later than the one that it replaces. */
    void put(const QByteArray &bytes, int seconds)
    {
        const QDateTime date = QFileInfo(path()).lastModified();
        QFile::remove(path());
        QVERIFY(CatalogueFolder::write(path(), bytes));
        if (date.isValid())
            QVERIFY(CatalogueFolder::setDate(path(), date.addSecs(seconds)));
    }

    void edit() { m_controller->project()->addTag("edited"); }
    bool isModified() const { return !m_controller->project()->undoStack()->isClean(); }
    QStringList tags() const { return m_controller->project()->allTags(); }

    std::unique_ptr<CatalogueFolder> m_folder;
    std::unique_ptr<ProjectController> m_controller;
};

QTEST_GUILESS_MAIN(TestCatalogueOnDisk)
#include "tst_catalogueondisk.moc"
