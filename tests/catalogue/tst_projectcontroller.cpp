#include "app/base/Error.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/records/IFile.h"
#include "catalogue/sync/ProjectController.h"
#include "properties/ChangeManager.h"
#include "properties/GUndoStack.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/ScriptedListener.h"
#include <memory>
#include <QDir>
#include <QtTest>

class ProjectControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void createsMissingCatalogue();
    void replacesBrokenCatalogue();
    void keepsBrokenCatalogueWhenOnlyLoading();
    void keepsOutermostFolders_data();
    void keepsOutermostFolders();
    void savesAfterScan();
    void leavesFileAloneWhenNothingChanged();
    void removesOnlyWholeSmartFolders();
    void savesUserEditsOnce();
    void keepsModifiedFlagWhenSavingFails();
    void reloadsNewerCatalogueOnly();
    void savesNothingWhenScanFails();
    void cancelledScanIsNormalEnd();
    void hostileNamesSurviveReload();

private:
    QString path(const char *name) const { return m_folder->design(QLatin1String(name)); }

    std::unique_ptr<CatalogueFolder> m_folder;
    std::unique_ptr<ProjectController> m_controller;
    ScriptedListener m_listener;
};

void ProjectControllerTest::init()
{
    m_folder = std::make_unique<CatalogueFolder>();
    m_listener = ScriptedListener();
    m_controller = std::make_unique<ProjectController>();
    m_controller->setProgressAbortListener(&m_listener);
}

void ProjectControllerTest::cleanup()
{
    m_controller.reset();
    m_folder.reset();
}

void ProjectControllerTest::createsMissingCatalogue()
{
    QVERIFY(!QFile::exists(m_folder->catalogueFile()));
    m_controller->loadOrCreateProject();
    QVERIFY(CatalogueFolder::read(m_folder->catalogueFile()).contains("<hoopline_organizer"));
    QVERIFY(m_controller->project()->undoStack()->isClean());
}

void ProjectControllerTest::replacesBrokenCatalogue()
{
    QVERIFY(QDir().mkpath(m_folder->dataFile(QString())));
    QVERIFY(CatalogueFolder::write(m_folder->catalogueFile(), "<hoopline_organizer"));
    m_controller->loadOrCreateProject();
    ProjectController again;
    again.loadProject();
    QVERIFY(again.project()->files().isEmpty());
}

void ProjectControllerTest::keepsBrokenCatalogueWhenOnlyLoading()
{
    QVERIFY(QDir().mkpath(m_folder->dataFile(QString())));
    QVERIFY(CatalogueFolder::write(m_folder->catalogueFile(), "<hoopline_organizer"));
    QVERIFY_EXCEPTION_THROWN(m_controller->loadProject(), Error);
    QCOMPARE(CatalogueFolder::read(m_folder->catalogueFile()), QByteArray("<hoopline_organizer"));
}

void ProjectControllerTest::keepsOutermostFolders_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("outermost");
    QTest::newRow("none") << QStringList() << QStringList();
    QTest::newRow("twice") << QStringList{"/a", "/a"} << QStringList{"/a"};
    QTest::newRow("sub-folders") << QStringList{"/a/b/c", "/a/b", "/a"} << QStringList{"/a"};
    QTest::newRow("sibling of the same beginning")
        << QStringList{"/a/rose", "/a/roses"} << QStringList{"/a/rose", "/a/roses"};
    QTest::newRow("case matters") << QStringList{"/A/b", "/a"} << QStringList{"/a", "/A/b"};
    QTest::newRow("several") << QStringList{"/b", "/a/x", "/a", "/c/d"}
                             << QStringList{"/a", "/b", "/c/d"};
}

void ProjectControllerTest::keepsOutermostFolders()
{
    QFETCH(QStringList, given);
    QTEST(ProjectController::sortAndRemoveSubdirectories(given), "outermost");
}

void ProjectControllerTest::savesAfterScan()
{
    QVERIFY(QDir(m_folder->designs()).mkpath("inner"));
    QVERIFY(DstDesign::square().writeTo(path("inner/a.dst")));
    QVERIFY(DstDesign::square().writeTo(path("b.dst")));
    m_controller->loadOrCreateProject();
    m_controller->addDirectories({path("inner")});
    QCOMPARE(m_controller->lastScan().added, 1);
    m_controller->addDirectories({m_folder->designs()});
    QCOMPARE(m_controller->lastScan().added, 1);
    QCOMPARE(m_controller->project()->smartFolders(), QStringList{m_folder->designs()});
    QVERIFY(m_controller->project()->undoStack()->isClean());
    QCOMPARE(m_controller->selectionModel()->filter()->filteredFiles().size(), 2);

    ProjectController again;
    again.loadProject();
    QCOMPARE(again.project()->files().size(), 2);
    QCOMPARE(again.project()->smartFolders(), QStringList{m_folder->designs()});
}

void ProjectControllerTest::leavesFileAloneWhenNothingChanged()
{
    QVERIFY(DstDesign::square().writeTo(path("a.dst")));
    m_controller->loadOrCreateProject();
    m_controller->addDirectories({m_folder->designs()});
    QVERIFY(CatalogueFolder::write(m_folder->catalogueFile(), "mark"));
    m_controller->scanSmartFolders();
    QCOMPARE(CatalogueFolder::read(m_folder->catalogueFile()), QByteArray("mark"));
}

void ProjectControllerTest::removesOnlyWholeSmartFolders()
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

void ProjectControllerTest::savesUserEditsOnce()
{
    m_controller->loadOrCreateProject();
    m_controller->project()->addTag("red");
    QVERIFY(!m_controller->project()->undoStack()->isClean());
    m_controller->saveProjectIfModified();
    QVERIFY(CatalogueFolder::read(m_folder->catalogueFile()).contains("<string>red</string>"));
    QVERIFY(CatalogueFolder::write(m_folder->catalogueFile(), "mark"));
    m_controller->saveProjectIfModified();
    QCOMPARE(CatalogueFolder::read(m_folder->catalogueFile()), QByteArray("mark"));
}

void ProjectControllerTest::keepsModifiedFlagWhenSavingFails()
{
    m_controller->loadOrCreateProject();
    m_controller->project()->addTag("red");
    // A directory in the file's place cannot be written, whoever runs the test.
    QVERIFY(QFile::remove(m_folder->catalogueFile()));
    QVERIFY(QDir().mkpath(m_folder->catalogueFile() + "/x"));
    QVERIFY_EXCEPTION_THROWN(m_controller->saveProjectIfModified(), Error);
    QVERIFY(!m_controller->project()->undoStack()->isClean());
}

void ProjectControllerTest::reloadsNewerCatalogueOnly()
{
    m_controller->loadOrCreateProject();
    const QDateTime date = QFileInfo(m_folder->catalogueFile()).lastModified();
    QByteArray changed = CatalogueFolder::read(m_folder->catalogueFile());
    changed.replace("<all_tags/>", "<all_tags><string>new</string></all_tags>");
    QVERIFY(changed.contains("new"));
    QVERIFY(CatalogueFolder::write(m_folder->catalogueFile(), changed));

    QVERIFY(CatalogueFolder::setDate(m_folder->catalogueFile(), date));
    m_controller->reloadProjectIfNewerOnDisk();
    QVERIFY(m_controller->project()->allTags().isEmpty());

    QVERIFY(CatalogueFolder::setDate(m_folder->catalogueFile(), date.addSecs(5)));
    m_controller->reloadProjectIfNewerOnDisk();
    QCOMPARE(m_controller->project()->allTags(), QStringList{"new"});
}

void ProjectControllerTest::savesNothingWhenScanFails()
{
    QVERIFY(DstDesign::square().writeTo(path("a.dst")));
    m_controller->loadOrCreateProject();
    const QByteArray before = CatalogueFolder::read(m_folder->catalogueFile());
    m_listener.onProceed = [this](const QString &text) {
        if (text.startsWith(QLatin1String("Loading")))
            QFile::remove(path("a.dst"));
    };
    QVERIFY_EXCEPTION_THROWN(m_controller->addDirectories({m_folder->designs()}), Error);
    QCOMPARE(CatalogueFolder::read(m_folder->catalogueFile()), before);
    ChangeManager::instance().finishBulkOperation(true);
}

void ProjectControllerTest::cancelledScanIsNormalEnd()
{
    QVERIFY(DstDesign::square().writeTo(path("a.dst")));
    m_controller->loadOrCreateProject();
    m_listener.onProceed = [this](const QString &) { m_listener.aborted = true; };
    m_controller->addDirectories({m_folder->designs()});
    QCOMPARE(m_controller->lastScan().changed(), 0);
    // The folder was added all the same; a rescan fills it.
    ProjectController again;
    again.loadProject();
    QCOMPARE(again.project()->smartFolders(), QStringList{m_folder->designs()});
}

void ProjectControllerTest::hostileNamesSurviveReload()
{
    const QByteArray name("A\001<&>\"\033]\177 b", 11);
    QVERIFY(DstDesign::square(name).writeTo(path("quote\"<&>'\001.dst")));
    QVERIFY(DstDesign::square("plain").writeTo(path("plain.dst")));
    m_controller->loadOrCreateProject();
    m_controller->addDirectories({m_folder->designs()});
    QCOMPARE(m_controller->project()->files().size(), 2);

    ProjectController again;
    again.loadProject();
    QCOMPARE(again.project()->files().size(), 2);
    QCOMPARE(again.project()->smartFolders(), QStringList{m_folder->designs()});
}

QTEST_MAIN(ProjectControllerTest)
#include "tst_projectcontroller.moc"
