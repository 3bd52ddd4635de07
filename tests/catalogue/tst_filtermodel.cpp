#include "catalogue/Catalogue.h"
#include "catalogue/models/FilterModel.h"

#include <QtTest>

class TestFilterModel : public QObject
{
    Q_OBJECT

private slots:
    void startsFilledAndSorted();
    void search_data();
    void search();
    void emptiedSearchWantsAWordBoundary();
    void fileTypes();
    void maximumSize();
    void directoryIsAPrefix();
    void tags();
    void favoritesShowAtRefresh();
    void signalOrder();
    void unchangedResultIsNotTold();
    void singleFileChanges();
    void changesOfManyFilesAreToldOnce();
    void renamedFileMoves();
    void fileListChanges();
    void deadRecordsAreForgotten();
};

/** Counts and remembers what the filter emits. */
struct Told
{
    explicit Told(IFilterModel *model)
    {
        QObject::connect(model, &IFilterModel::filterChanged, [this](const auto &files) {
            log << QStringLiteral("filter");
            paths = Catalogue::paths(files);
        });
        QObject::connect(model, &IFilterModel::directoryFilterChanged,
                         [this](const QString &path) { log << "directory " + path; });
        QObject::connect(model, &IFilterModel::tagFilterChanged,
                         [this](const QString &tag) { log << "tag " + tag; });
    }

    QStringList log;
    QString paths;
};

void TestFilterModel::startsFilledAndSorted()
{
    Catalogue catalogue;
    for (const char *path : {"/d/10.pes", "/d/b.pes", "/d/2.pes", "/d/A.pes"})
        catalogue.add(path);
    const FilterModel model(catalogue.project);
    QCOMPARE(Catalogue::paths(model.filteredFiles()),
             QStringLiteral("/d/2.pes /d/10.pes /d/A.pes /d/b.pes"));
}

void TestFilterModel::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found");
    QTest::newRow("short within a word") << "ab"
                                         << "/d/AB.pes";
    QTest::newRow("long within a word") << "abr"
                                        << "/d/fabric.dst";
    QTest::newRow("any case") << "FABR"
                              << "/d/fabric.dst";
    QTest::newRow("in the notes") << "wedding"
                                  << "/d/x.y.pes";
    QTest::newRow("not the folder") << "/d/"
                                    << "";
    QTest::newRow("not the suffix") << "dst"
                                    << "";
    QTest::newRow("complete base name") << "x.y"
                                        << "/d/x.y.pes";
    QTest::newRow("no pattern") << "..."
                                << "";
    QTest::newRow("one character") << "x"
                                   << "/d/x.y.pes";
}

void TestFilterModel::search()
{
    QFETCH(QString, text);
    QFETCH(QString, found);
    Catalogue catalogue;
    catalogue.add("/d/AB.pes");
    catalogue.add("/d/fabric.dst");
    catalogue.add("/d/x.y.pes")->setNotes("for the wedding");
    FilterModel model(catalogue.project);
    model.setSearchSubstring(text);
    QCOMPARE(Catalogue::paths(model.filteredFiles()), found);
}

void TestFilterModel::emptiedSearchWantsAWordBoundary()
{
    Catalogue catalogue;
    catalogue.add("/d/---.pes");
    catalogue.add("/d/--a.pes");
    catalogue.add("/d/==.pes")->setNotes("n");
    FilterModel model(catalogue.project);
    QCOMPARE(model.filteredFiles().count(), 3);
    model.setSearchSubstring("a");
    model.setSearchSubstring(QString());
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/d/--a.pes /d/==.pes"));
}

void TestFilterModel::fileTypes()
{
    Catalogue catalogue;
    for (const char *path : {"/a.pes", "/b.PES", "/c.dst", "/pes"})
        catalogue.add(path);
    FilterModel model(catalogue.project);
    model.setFileType("PES");
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/a.pes /b.PES"));
    model.setFileType(QString());
    QCOMPARE(model.filteredFiles().count(), 4);
}

void TestFilterModel::maximumSize()
{
    Catalogue catalogue;
    catalogue.add("/a")->setDesignSize({100.0, 50});
    catalogue.add("/b")->setDesignSize({100.1, 50});
    catalogue.add("/c")->setDesignSize({10, 200});
    catalogue.add("/d");
    FilterModel model(catalogue.project);
    model.setMaxDesignSize({100, -1});
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/a /c /d"));
    model.setMaxDesignSize({100, 50});
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/a /d"));
    model.setMaxDesignSize({0, 0});
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/d"));
}

void TestFilterModel::directoryIsAPrefix()
{
    Catalogue catalogue;
    for (const char *path : {"/a/b/x.pes", "/a/bc/x.pes", "/a/B/x.pes"})
        catalogue.add(path);
    FilterModel model(catalogue.project);
    model.setDirectory("/a/b");
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/a/b/x.pes /a/bc/x.pes"));
}

void TestFilterModel::tags()
{
    Catalogue catalogue;
    catalogue.add("/a")->setTags({"red"});
    catalogue.add("/b")->setTags({"Red"});
    FilterModel model(catalogue.project);
    model.setTag("red");
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/a"));
}

void TestFilterModel::favoritesShowAtRefresh()
{
    Catalogue catalogue;
    const auto file = catalogue.add("/a");
    file->setFavorite(true);
    catalogue.add("/b");
    FilterModel model(catalogue.project);
    model.setFavoritesOnly(true);
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/a"));
    file->setFavorite(false);
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/a"));
    const Told told(&model);
    model.refreshFilter();
    QCOMPARE(told.log, QStringList("filter"));
    QVERIFY(model.filteredFiles().isEmpty());
}

void TestFilterModel::signalOrder()
{
    Catalogue catalogue;
    catalogue.add("/a/x");
    catalogue.add("/b/x");
    FilterModel model(catalogue.project);
    const Told told(&model);
    model.setDirectory("/a");
    model.setDirectory("/a");
    model.setTag("t");
    model.setTag("t");
    QCOMPARE(told.log, QStringList({"filter", "directory /a", "filter", "tag t"}));
    QCOMPARE(model.directoryFilter(), QStringLiteral("/a"));
    QCOMPARE(model.tagFilter(), QStringLiteral("t"));
}

void TestFilterModel::unchangedResultIsNotTold()
{
    Catalogue catalogue;
    catalogue.add("/a.pes");
    FilterModel model(catalogue.project);
    const Told told(&model);
    model.setFileType("pes");
    model.setDirectory("/");
    model.refreshFilter();
    QCOMPARE(told.log, QStringList("directory /"));
}

void TestFilterModel::singleFileChanges()
{
    Catalogue catalogue;
    catalogue.add("/c")->setTags({"t"});
    const auto file = catalogue.add("/b");
    catalogue.add("/a")->setTags({"t"});
    FilterModel model(catalogue.project);
    model.setTag("t");
    const Told told(&model);
    file->addTag("t");
    QCOMPARE(told.paths, QStringLiteral("/a /b /c"));
    file->addTag("u");
    QCOMPARE(told.log.count(), 1);
    file->removeTag("t");
    QCOMPARE(told.paths, QStringLiteral("/a /c"));
    model.setMaxDesignSize({5, 5});
    catalogue.project->files().at(0)->setDesignSize({6, 6});
    QCOMPARE(told.paths, QStringLiteral("/c"));
    QCOMPARE(Catalogue::paths(model.filteredFiles()), told.paths);
}

void TestFilterModel::changesOfManyFilesAreToldOnce()
{
    Catalogue catalogue;
    QList<QSharedPointer<IFile>> files;
    for (const char *path : {"/d/1.pes", "/d/2.pes", "/d/3.pes"})
        files << catalogue.add(path);
    for (const auto &file : qAsConst(files))
        file->addTag(QStringLiteral("rose"));
    FilterModel model(catalogue.project);
    model.setTag(QStringLiteral("rose"));
    const Told told(&model);
    catalogue.project->undoStack()->beginMacroAndDeferAllAnnouncements(QString());
    files.at(0)->removeTag(QStringLiteral("rose"));
    files.at(1)->setAbsoluteFilePath(QStringLiteral("/d/4.pes"));
    files.at(2)->removeTag(QStringLiteral("rose"));
    catalogue.project->undoStack()->endMacroAndExecuteAnnouncements();
    QCOMPARE(told.log, QStringList{QStringLiteral("filter")});
    QCOMPARE(told.paths, QStringLiteral("/d/4.pes"));
}

void TestFilterModel::renamedFileMoves()
{
    Catalogue catalogue;
    const auto file = catalogue.add("/a");
    catalogue.add("/b");
    FilterModel model(catalogue.project);
    const Told told(&model);
    file->setAbsoluteFilePath("/c");
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/b /c"));
    model.refreshFilter();
    QVERIFY(told.log.isEmpty());
    model.setDirectory("/b");
    file->setAbsoluteFilePath("/bc");
    QCOMPARE(told.paths, QStringLiteral("/b /bc"));
}

void TestFilterModel::fileListChanges()
{
    Catalogue catalogue;
    FilterModel model(catalogue.project);
    const Told told(&model);
    const auto b = catalogue.add("/b");
    catalogue.add("/a");
    QCOMPARE(told.paths, QStringLiteral("/a /b"));
    b->setTags({"t"});
    model.setTag("t");
    QCOMPARE(told.paths, QStringLiteral("/b"));
    catalogue.project->filesProp()->removeWithoutUndo(1);
    QCOMPARE(told.paths, QString());
    QVERIFY(model.filteredFiles().isEmpty());
}

void TestFilterModel::deadRecordsAreForgotten()
{
    Catalogue catalogue;
    const auto file = catalogue.add("/a");
    FilterModel model(catalogue.project);
    catalogue.project->clear();
    const Told told(&model);
    file->setTags({"t"});
    file->setAbsoluteFilePath("/b");
    QVERIFY(told.log.isEmpty());
    QVERIFY(model.filteredFiles().isEmpty());
}

QTEST_MAIN(TestFilterModel)
#include "tst_filtermodel.moc"
