#include "catalogue/Catalogue.h"
#include "catalogue/models/FilterModel.h"
#include "support/Rows.h"

#include <QtTest>

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

class TestFilterModel : public QObject
{
    Q_OBJECT

private slots:
    void searches()
    {
        Catalogue catalogue;
        for (const char *path : {"/d/---.pes", "/d/AB.pes", "/d/fabric.dst", "/d/红花.pes"})
            catalogue.add(path);
        catalogue.add("/d/x.y.pes")->setNotes("for the wedding, 바늘 ดอกไม้ はなび");
        FilterModel model(catalogue.project);
        QCOMPARE(model.filteredFiles().count(), 5);
        const QMap<QString, QString> foundByText = {
            {"", "/d/AB.pes /d/fabric.dst /d/x.y.pes /d/红花.pes"}, // what has a word boundary
            {"ab", "/d/AB.pes"},                                    // a whole word
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

    void understandsFields()
    {
        Catalogue catalogue;
        const auto rose = catalogue.add("/d/rose.pes", {"red"});
        const auto tulip = catalogue.add("/d/tulip.pes", {"red", "done"});
        FilterModel model(catalogue.project);
        model.setSearchSubstring("tag:red -tag:done is:duplicate");
        const Told told(&model);
        QCOMPARE(model.filteredFiles().count(), 0);
        // Contents show at the next refresh, tags at once.
        for (const auto &file : {rose, tulip})
            file->setContentHash("same");
        QVERIFY(told.log.isEmpty());
        model.refreshFilter();
        tulip->setTags({"red"});
        QCOMPARE(told.log, QStringList({"/d/rose.pes", "/d/rose.pes /d/tulip.pes"}));
    }

    void mistakesLeaveTheDesigns()
    {
        Catalogue catalogue;
        catalogue.add("/d/rose.pes");
        catalogue.add("/d/tulip.dst");
        FilterModel model(catalogue.project);
        QStringList texts;
        connect(&model, &IFilterModel::searchTextChanged,
                [&](const QString &text) { texts << text + (model.searchRemark() ? "!" : ""); });
        const auto shown = [&](const QString &text) {
            model.setSearchSubstring(text);
            return Catalogue::paths(model.filteredFiles());
        };
        QCOMPARE(shown("type:dst"), "/d/tulip.dst");
        QCOMPARE(shown("type:dst fits:1x"), "/d/tulip.dst");
        QCOMPARE(model.searchText(), "type:dst fits:1x");
        // What stays is the last search without a mistake, also for what changes meanwhile.
        model.setFileType("pes");
        QVERIFY(model.filteredFiles().isEmpty());
        model.setFileType(QString());
        QCOMPARE(shown("is:dst"), "/d/tulip.dst");
        QCOMPARE(shown("is:dst"), "/d/tulip.dst");
        QCOMPARE(shown("is:"), "/d/rose.pes /d/tulip.dst");
        QCOMPARE(texts, QStringList({"type:dst", "type:dst fits:1x!", "is:dst!", "is:!"}));
    }

    void narrows()
    {
        Catalogue catalogue;
        catalogue.add("/a/10.PES", {"Red"})->setDesignSize({100.0, 50});
        catalogue.add("/a/2.pes", {"red"})->setDesignSize({100.1, 50});
        catalogue.add("/a/B/3.dst")->setDesignSize({10, 200});
        catalogue.add("/a/b/4.dst");
        catalogue.add("/a/bc/pes");
        FilterModel model(catalogue.project);
        const auto shown = [&model] { return Catalogue::paths(model.filteredFiles()); };
        QCOMPARE(shown(), "/a/2.pes /a/10.PES /a/B/3.dst /a/b/4.dst /a/bc/pes");
        model.setMaxDesignSize({100, -1});
        QCOMPARE(shown(), "/a/10.PES /a/B/3.dst /a/b/4.dst /a/bc/pes");
        model.setMaxDesignSize({100, 50});
        QCOMPARE(shown(), "/a/10.PES /a/b/4.dst /a/bc/pes");
        model.setDirectory("/a/b");
        QCOMPARE(shown(), "/a/b/4.dst /a/bc/pes");
        model.setDirectory(QString());
        model.setFileType("PeS");
        QCOMPARE(shown(), "/a/10.PES");
        model.setMaxDesignSize({-1, -1});
        model.setTag("red");
        QCOMPARE(shown(), "/a/2.pes");
    }

    void sorts_data()
    {
        const Rows<QString> row("names");
        row("name", "2 10 b-c/1 b/3 b/x/4");
        row("name:desc", "b/x/4 b/3 b-c/1 10 2");
        row("size", "2 10 b/x/4 b/3 b-c/1");
        row("size:desc", "b/3 2 10 b/x/4 b-c/1"); // equal ones stay, the unknown one too
        row("stitches", "b/x/4 b/3 10 2 b-c/1");
        row("stitches:desc", "2 10 b/3 b/x/4 b-c/1");
        row("colors:asc", "2 b/3 b/x/4 10 b-c/1");
        row("date:DESC", "b/3 10 2 b-c/1 b/x/4");
        row("folder", "2 10 b/3 b-c/1 b/x/4");
    }

    void sorts()
    {
        Catalogue catalogue;
        const auto add = [&](const char *path, const QSizeF &size, int stitches, int threads,
                             int date) {
            const auto file = catalogue.add(QLatin1String("/a/") + path);
            file->setDesignSize(size);
            file->setStitchCount(stitches);
            file->setModificationDate(unsigned(date));
            QList<QSharedPointer<IThread>> list;
            for (int i = 0; i < threads; ++i)
                list << QSharedPointer<Thread>::create(catalogue.project.data());
            file->setThreads(list);
        };
        add("2", {10, 20}, 300, 0, 20);
        add("10", {20, 10}, 200, 3, 30);
        add("b/3", {100, 100}, 100, 1, 40);
        add("b-c/1", {-1, -1}, 0, 0, 0);
        add("b/x/4", {200, 1}, 7, 2, 0);
        FilterModel model(catalogue.project);
        const auto sortOrder = SortOrder::fromText(QTest::currentDataTag());
        QVERIFY(sortOrder);
        model.setSortOrder(*sortOrder);
        QTEST(Catalogue::paths(model.filteredFiles()).remove("/a/"), "names");
    }

    void sortedAnewWhenFactsChange()
    {
        Catalogue catalogue;
        const auto a = catalogue.add("/a");
        const auto b = catalogue.add("/b");
        a->setStitchCount(1);
        b->setStitchCount(2);
        FilterModel model(catalogue.project);
        const Told told(&model);
        model.setSortOrder({SortOrder::Stitches, true});
        model.setSortOrder({SortOrder::Stitches, true});
        a->setStitchCount(3);
        model.refreshFilter();
        catalogue.add("/c")->setStitchCount(4);
        QCOMPARE(Catalogue::paths(model.filteredFiles()), "/a /b /c");
        model.refreshFilter();
        QCOMPARE(told.log, QStringList({"/b /a", "/a /b", "/a /b /c", "/c /a /b"}));
    }

    void sortOrderAsText()
    {
        for (const QString &name : SortOrder::keyNames()) {
            for (const QString &text : {name, name + ":desc"})
                QCOMPARE(SortOrder::fromText(text).value().toText(), text);
        }
        for (const char *text :
             {"", "names", "name:", "name:down", ":desc", "desc", "name:desc:desc"})
            QVERIFY2(!SortOrder::fromText(text), text);
    }

    void signalOrder()
    {
        Catalogue catalogue;
        catalogue.add("/a/x");
        catalogue.add("/b/a/x");
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

    void singleFileChanges()
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
        QCOMPARE(told.log.constLast(), "/c");
        QCOMPARE(Catalogue::paths(model.filteredFiles()), "/c");
    }

    void changesOfManyFilesAreToldOnce()
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

    void renamedFileMoves()
    {
        Catalogue catalogue;
        const auto file = catalogue.add("/a");
        catalogue.add("/b");
        FilterModel model(catalogue.project);
        const Told told(&model);
        file->setAbsoluteFilePath("/c");
        QCOMPARE(Catalogue::paths(model.filteredFiles()), "/b /c");
        model.refreshFilter();
        QVERIFY(told.log.isEmpty());
        model.setDirectory("/b");
        file->setAbsoluteFilePath("/bc");
        QCOMPARE(told.log.constLast(), "/b /bc");
    }

    void fileListChanges()
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
};

QTEST_MAIN(TestFilterModel)
#include "tst_filtermodel.moc"
