#include "catalogue/Catalogue.h"
#include "catalogue/models/FilterModel.h"

#include <QMap>
#include <QtTest>

class TestFilterModel : public QObject
{
    Q_OBJECT

private slots:
    void searches();
    void narrows();
    void signalOrder();
    void singleFileChanges();
    void changesOfManyFilesAreToldOnce();
    void renamedFileMoves();
    void fileListChanges();
};

/** Remembers what the filter emits. */
struct Told
{
    explicit Told(IFilterModel *model)
    {
        QObject::connect(model, &IFilterModel::filterChanged,
                         [this](const auto &files) { log << Catalogue::paths(files); });
        QObject::connect(model, &IFilterModel::directoryFilterChanged,
                         [this](const QString &path) { log << "directory " + path; });
        QObject::connect(model, &IFilterModel::tagFilterChanged,
                         [this](const QString &tag) { log << "tag " + tag; });
    }

    QStringList log;
};

void TestFilterModel::searches()
{
    Catalogue catalogue;
    for (const char *path : {"/d/---.pes", "/d/AB.pes", "/d/fabric.dst", "/d/红花.pes"})
        catalogue.add(path);
    catalogue.add("/d/x.y.pes")->setNotes("for the wedding, 바늘 ดอกไม้ はなび");
    FilterModel model(catalogue.project);
    QCOMPARE(model.filteredFiles().count(), 5);
    const QMap<QString, QString> foundByText = {
        {"", "/d/AB.pes /d/fabric.dst /d/x.y.pes /d/红花.pes"}, // what has a word boundary
        {"ab", "/d/AB.pes"},                        // a whole word
        {"ABR", "/d/fabric.dst"},
        {"wedding", "/d/x.y.pes"},
        {"x.y", "/d/x.y.pes"},
        {"/d/", ""},
        {"dst", ""},
        {"...", ""},
        {"花", "/d/红花.pes"}, // found inside: no blank tells where a word ends
        {"늘", "/d/x.y.pes"},
        {"อก", "/d/x.y.pes"},
        {"なび", "/d/x.y.pes"},
        {"d", ""},
    };
    for (auto it = foundByText.cbegin(); it != foundByText.cend(); ++it) {
        model.setSearchSubstring(it.key());
        QCOMPARE(it.key() + ": " + Catalogue::paths(model.filteredFiles()),
                 it.key() + ": " + it.value());
    }
}

void TestFilterModel::narrows()
{
    Catalogue catalogue;
    catalogue.add("/a/10.PES", {"Red"})->setDesignSize({100.0, 50});
    catalogue.add("/a/2.pes", {"red"})->setDesignSize({100.1, 50});
    catalogue.add("/a/B/3.dst")->setDesignSize({10, 200});
    catalogue.add("/a/b/4.dst");
    catalogue.add("/a/bc/pes");
    FilterModel model(catalogue.project);
    const auto shown = [&model] { return Catalogue::paths(model.filteredFiles()); };
    QCOMPARE(shown(), QStringLiteral("/a/2.pes /a/10.PES /a/B/3.dst /a/b/4.dst /a/bc/pes"));
    model.setMaxDesignSize({100, -1});
    QCOMPARE(shown(), QStringLiteral("/a/10.PES /a/B/3.dst /a/b/4.dst /a/bc/pes"));
    model.setMaxDesignSize({100, 50});
    QCOMPARE(shown(), QStringLiteral("/a/10.PES /a/b/4.dst /a/bc/pes"));
    model.setDirectory("/a/b");
    QCOMPARE(shown(), QStringLiteral("/a/b/4.dst /a/bc/pes"));
    model.setDirectory(QString());
    model.setFileType("PeS");
    QCOMPARE(shown(), QStringLiteral("/a/10.PES"));
    model.setMaxDesignSize({-1, -1});
    model.setTag("red");
    QCOMPARE(shown(), QStringLiteral("/a/2.pes"));
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
    model.setFileType("pes");
    model.setDirectory("/b");
    QCOMPARE(told.log, QStringList({"/a/x", "directory /a", "", "tag t", "directory /b"}));
}

void TestFilterModel::singleFileChanges()
{
    Catalogue catalogue;
    catalogue.add("/c", {"t"});
    const auto b = catalogue.add("/b");
    const auto a = catalogue.add("/a", {"t"});
    for (const auto &file : catalogue.project->files())
        file->setFavorite(true);
    FilterModel model(catalogue.project);
    model.setTag("t");
    model.setMaxDesignSize({5, 5});
    model.setFavoritesOnly(true);
    const Told told(&model);
    b->addTag("t");
    b->addTag("u");
    b->setFavorite(false); // shows at the next refresh only
    a->setDesignSize({6, 6});
    QCOMPARE(told.log, QStringList({"/a /b /c", "/b /c"}));
    model.refreshFilter();
    QCOMPARE(told.log.constLast(), QStringLiteral("/c"));
    QCOMPARE(Catalogue::paths(model.filteredFiles()), QStringLiteral("/c"));
}

void TestFilterModel::changesOfManyFilesAreToldOnce()
{
    Catalogue catalogue;
    QList<QSharedPointer<IFile>> files;
    for (const char *path : {"/d/1.pes", "/d/2.pes", "/d/3.pes"})
        files << catalogue.add(path, {"rose"});
    FilterModel model(catalogue.project);
    model.setTag("rose");
    const Told told(&model);
    catalogue.project->undoStack()->beginMacroAndDeferAllAnnouncements(QString());
    files.at(0)->removeTag("rose");
    files.at(1)->setAbsoluteFilePath("/d/4.pes");
    files.at(2)->removeTag("rose");
    catalogue.project->undoStack()->endMacroAndExecuteAnnouncements();
    QCOMPARE(told.log, QStringList("/d/4.pes"));
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
    QCOMPARE(told.log.constLast(), QStringLiteral("/b /bc"));
}

void TestFilterModel::fileListChanges()
{
    Catalogue catalogue;
    FilterModel model(catalogue.project);
    model.setTag("t");
    const Told told(&model);
    catalogue.add("/b", {"t"});
    const auto a = catalogue.add("/a");
    a->setTags({"t"});
    QCOMPARE(told.log, QStringList({"/b", "/a /b"}));
    // A record that has left is watched no more.
    catalogue.project->filesProp()->removeWithoutUndo(0);
    a->setTags({});
    a->setAbsoluteFilePath("/c");
    a->setTags({"t"});
    QCOMPARE(told.log.mid(2), QStringList("/b"));
    catalogue.project->clear();
    QVERIFY(model.filteredFiles().isEmpty());
}

QTEST_MAIN(TestFilterModel)
#include "tst_filtermodel.moc"
