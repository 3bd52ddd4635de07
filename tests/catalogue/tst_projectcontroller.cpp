#include "base/Error.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/records/IFile.h"
#include "catalogue/sync/ProjectController.h"
#include "preview/cache/PreviewCache.h"
#include "properties/changes/ChangeManager.h"
#include "properties/undo/GUndoStack.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/ScriptedListener.h"
#include <memory>
#include <QtTest>

class ProjectControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<CatalogueFolder>();
        m_listener = ScriptedListener();
        m_controller = std::make_unique<ProjectController>();
        m_controller->setProgressAbortListener(&m_listener);
    }

    void cleanup()
    {
        m_controller.reset();
        m_folder.reset();
    }

    void keepsOutermostFolders()
    {
        const auto outermost = &ProjectController::sortAndRemoveSubdirectories;
        QCOMPARE(outermost({}), QStringList());
        QCOMPARE(outermost({"/a", "/a"}), QStringList{"/a"});
        QCOMPARE(outermost({"/b", "/a/b/c", "/a/b", "/a", "/c/d"}),
                 (QStringList{"/a", "/b", "/c/d"}));
        QCOMPARE(outermost({"/a/rose", "/a/roses"}), (QStringList{"/a/rose", "/a/roses"}));
        QCOMPARE(outermost({"/A/b", "/a"}), (QStringList{"/a", "/A/b"}));
    }

    void savesWhatScanChanged()
    {
        QVERIFY(QDir(m_folder->designs()).mkpath("inner"));
        QVERIFY(DstDesign::square().writeTo(path("inner/a.dst")));
        QVERIFY(DstDesign::square().writeTo(path("b.dst")));
        m_controller->loadOrCreateProject();
        m_controller->addDirectories({path("inner")});
        QCOMPARE(m_controller->lastScan().added, 1);
        m_controller->addDirectories({m_folder->designs()});
        QCOMPARE(m_controller->lastScan().added, 1);
        QVERIFY(m_controller->project()->undoStack()->isClean());
        QCOMPARE(m_controller->selectionModel()->filter()->filteredFiles().size(), 2);
        // What a rescan finds is saved, too, though the user has edited nothing.
        QVERIFY(DstDesign::square().writeTo(path("c.dst")));
        m_controller->scanSmartFolders();

        ProjectController again;
        again.loadProject();
        QCOMPARE(again.project()->files().size(), 3);
        QCOMPARE(again.project()->smartFolders(), QStringList{m_folder->designs()});

        overwrite("mark");
        m_controller->scanSmartFolders();
        QCOMPARE(saved(), "mark");
    }

    void forgetsPicturesThatMayHaveChanged()
    {
        QVERIFY(DstDesign::square().writeTo(path("a.dst")));
        m_controller->loadOrCreateProject();
        m_controller->addDirectories({m_folder->designs()});
        const auto file = m_controller->project()->files().constFirst();
        PreviewCache &cache = PreviewCache::instance();
        const QSignalSpy loads(&cache, &PreviewCache::loadPreview);
        const auto isKnown = [&] {
            const int before = loads.count();
            cache.previewImage(file, nullptr);
            return loads.count() == before;
        };
        QTRY_VERIFY(isKnown());
        m_controller->scanSmartFolders();
        QVERIFY(isKnown());
        QVERIFY(DstDesign::square("B").writeTo(path("b.dst")));
        m_controller->scanSmartFolders();
        QVERIFY(!isKnown());
        QTRY_VERIFY(isKnown());
        m_controller->restore(m_controller->backups().entries().constLast().path);
        QVERIFY(!isKnown());
    }

    void removesOnlyWholeSmartFolders()
    {
        QVERIFY(QDir(m_folder->designs()).mkpath("inner"));
        QVERIFY(DstDesign::square().writeTo(path("inner/a.dst")));
        m_controller->loadOrCreateProject();
        m_controller->addDirectories({m_folder->designs()});

        IFilterModel *filter = m_controller->selectionModel()->filter();
        for (const QString &directory : {QString(), path("inner")}) {
            filter->setDirectory(directory);
            m_controller->removeSelectedDirectory();
            QCOMPARE(m_controller->project()->files().size(), 1);
        }
        filter->setDirectory(m_folder->designs());
        m_controller->removeSelectedDirectory();
        QVERIFY(m_controller->project()->smartFolders().isEmpty());
        QVERIFY(m_controller->project()->files().isEmpty());
    }

    void savesUserEdits()
    {
        m_controller->loadOrCreateProject();
        m_controller->project()->addTag("red");
        m_controller->saveProjectIfModified();
        QVERIFY(saved().contains("<string>red</string>"));
        overwrite("mark");
        m_controller->saveProjectIfModified();
        QCOMPARE(saved(), "mark");
    }

    void reloadsNewerCatalogueOnly()
    {
        m_controller->loadOrCreateProject();
        const QDateTime date = QFileInfo(m_folder->catalogueFile()).lastModified();
        overwrite(saved().replace("<all_tags/>", "<all_tags><string>new</string></all_tags>"));

        QVERIFY(CatalogueFolder::setDate(m_folder->catalogueFile(), date));
        m_controller->reloadProjectIfNewerOnDisk();
        QVERIFY(m_controller->project()->allTags().isEmpty());

        QVERIFY(CatalogueFolder::setDate(m_folder->catalogueFile(), date.addSecs(5)));
        m_controller->reloadProjectIfNewerOnDisk();
        QCOMPARE(m_controller->project()->allTags(), QStringList{"new"});
    }

    void announcesAgainAfterAScanThatFailed()
    {
        m_controller->loadOrCreateProject();
        m_listener.onSetSteps = [](int) { throw Error("broken"); };
        QVERIFY_EXCEPTION_THROWN(m_controller->addDirectories({m_folder->designs()}), Error);
        QVERIFY(!ChangeManager::instance().isBulkOperationActive());
    }

    void userDataSurvivesHostileNames()
    {
        const QByteArray name("A\001<&>\"\033]\177 b", 11);
        QVERIFY(DstDesign::square(name).writeTo(path("quote\"<&>'\001.dst")));
        QVERIFY(DstDesign::square("plain").writeTo(path("plain.dst")));
        m_controller->loadOrCreateProject();
        m_controller->addDirectories({m_folder->designs()});
        for (const auto &file : m_controller->project()->files())
            file->setTags({"mine"});
        m_controller->saveProjectIfModified();

        // The catalogue cannot hold the control character; the content leads back to the record.
        ProjectController again;
        again.loadProject();
        again.scanSmartFolders();
        QCOMPARE(again.project()->files().size(), 2);
        for (const auto &file : again.project()->files())
            QCOMPARE(file->tags(), QStringList{"mine"});
    }

private:
    QString path(const char *name) const { return m_folder->design(QLatin1String(name)); }
    QByteArray saved() const { return CatalogueFolder::read(m_folder->catalogueFile()); }
    void overwrite(const QByteArray &bytes)
    {
        QVERIFY(CatalogueFolder::write(m_folder->catalogueFile(), bytes));
    }

    std::unique_ptr<CatalogueFolder> m_folder;
    std::unique_ptr<ProjectController> m_controller;
    ScriptedListener m_listener;
};

QTEST_MAIN(ProjectControllerTest)
#include "tst_projectcontroller.moc"
