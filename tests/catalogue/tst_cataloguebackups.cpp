#include "base/Error.h"
#include "catalogue/Catalogue.h"
#include "catalogue/sync/ProjectController.h"
#include "catalogue/userdata/RememberedData.h"
#include "support/CatalogueFolder.h"
#include "support/Rows.h"

#include <memory>
#include <QtTest>

/** When the catalogue is backed up, and how it comes back. */
class CatalogueBackupsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<CatalogueFolder>();
        QVERIFY(QDir().mkpath(m_folder->dataFile({})));
        m_controller = std::make_unique<ProjectController>();
    }

    void cleanup()
    {
        m_controller.reset();
        m_folder.reset();
    }

    void backsUpOnceADay()
    {
        put(catalogueWith("yesterday"));
        m_controller->loadOrCreateProject();
        QVERIFY(m_controller->backups().entries().isEmpty());
        edit();
        m_controller->saveProjectIfModified();
        m_controller->project()->addTag("later");
        m_controller->saveProjectIfModified();
        const auto entries = m_controller->backups().entries();
        QCOMPARE(entries.size(), 1);
        QVERIFY(entries.first().name.isOfDay());
        QCOMPARE(BackupFolder::read(entries.first().path), catalogueWith("yesterday"));
    }

    void savesWithoutABackup()
    {
        put(catalogueWith("yesterday"));
        m_controller->loadOrCreateProject();
        const QString folder = m_controller->backups().path();
        QVERIFY(CatalogueFolder::write(folder, "no folder"));
        edit();
        m_controller->saveProjectIfModified();
        QVERIFY(saved().contains("edited"));
        QVERIFY(!m_controller->backupFailure().isEmpty());
        // It is made up for.
        QVERIFY(QFile::remove(folder));
        m_controller->project()->addTag("later");
        m_controller->saveProjectIfModified();
        QVERIFY(m_controller->backupFailure().isEmpty());
        QCOMPARE(m_controller->backups().entries().size(), 1);
    }

    void keepsNoDamagedOneForTheDay()
    {
        put(catalogueWith("yesterday"));
        m_controller->loadOrCreateProject();
        const QByteArray damaged = catalogueWith("another").chopped(10);
        put(damaged);
        edit();
        m_controller->saveProjectIfModified();
        const auto entries = m_controller->backups().entries();
        QCOMPARE(entries.size(), 1);
        QVERIFY(!entries.first().name.isOfDay());
        QCOMPARE(BackupFolder::read(entries.first().path), damaged);
    }

    void restoresABackup()
    {
        put(catalogueWith("yesterday"));
        m_controller->loadOrCreateProject();
        edit();
        m_controller->saveProjectIfModified();
        const QByteArray present = saved();
        m_controller->project()->addTag("not saved yet");
        const QString kept = m_controller->restore(m_controller->backups().entries().last().path);
        QCOMPARE(tags(), QStringList("yesterday"));
        QVERIFY(!isModified());
        QVERIFY(saved().contains("<string>yesterday</string>"));
        QVERIFY(BackupFolder::read(kept).contains("not saved yet"));
        // A restart does not bring back what was given up.
        m_controller = std::make_unique<ProjectController>();
        m_controller->loadOrCreateProject();
        QCOMPARE(tags(), QStringList("yesterday"));
        m_controller->restore(kept);
        QCOMPARE(tags().size(), 3);
        QVERIFY(saved().size() > present.size());
    }

    void carriesSavedSearches()
    {
        put(catalogueWith("yesterday"));
        m_controller->loadOrCreateProject();
        SavedSearches *searches = m_controller->memory()->remembered()->searches();
        searches->add({"Roses", "rose"});
        edit();
        m_controller->saveProjectIfModified();
        searches->remove("Roses");
        searches->add({"Later", "tag:edited"});
        const QString backup = m_controller->backups().entries().last().path;
        const QString kept = m_controller->restore(backup);
        QCOMPARE(searches->all(), (QList<SavedSearch>{{"Later", "tag:edited"}, {"Roses", "rose"}}));
        QCOMPARE(m_controller->backups().entries().size(), 2);
        QVERIFY(BackupFolder::readSearches(kept).contains("Later"));
        const QString copy = m_folder->dataFile("copy.xml");
        m_controller->saveCopy(copy);
        QVERIFY(BackupFolder::readSearches(copy).contains("Roses"));
    }

    void restoresNothingThatIsDamaged_data()
    {
        const Rows<QByteArray> row("bytes");
        row("cut", catalogueWith("x").chopped(10));
        row("newer", QByteArray("<hoopline_organizer version='9.0'><new/></hoopline_organizer>"));
        row("cut archive", "\x1f\x8b\x08 and no more than that");
        row("nothing", {});
    }

    void restoresNothingThatIsDamaged()
    {
        QFETCH(QByteArray, bytes);
        put(catalogueWith("mine"));
        m_controller->loadOrCreateProject();
        const QByteArray before = saved();
        QVERIFY(CatalogueFolder::write(m_folder->dataFile("given"), bytes));
        QVERIFY_EXCEPTION_THROWN(m_controller->restore(m_folder->dataFile("given")), Error);
        QCOMPARE(tags(), QStringList("mine"));
        QCOMPARE(saved(), before);
        QVERIFY(!isModified());
        QVERIFY(m_controller->backups().entries().isEmpty());
    }

private:
    QByteArray saved() const { return CatalogueFolder::read(m_folder->catalogueFile()); }

    void put(const QByteArray &bytes) const
    {
        QFile::remove(m_folder->catalogueFile());
        QVERIFY(CatalogueFolder::write(m_folder->catalogueFile(), bytes));
    }

    void edit() { m_controller->project()->addTag("edited"); }
    bool isModified() const { return m_controller->isModified(); }
    QStringList tags() const { return m_controller->project()->allTags(); }

    std::unique_ptr<CatalogueFolder> m_folder;
    std::unique_ptr<ProjectController> m_controller;
};

QTEST_GUILESS_MAIN(CatalogueBackupsTest)
#include "tst_cataloguebackups.moc"
