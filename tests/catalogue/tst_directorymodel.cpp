#include "catalogue/Catalogue.h"
#include "catalogue/folders/DirectoryModel.h"
#include "support/Rows.h"

#include <QtTest>

/** The tree as text: names with their children in brackets. */
static QString text(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList items;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = text(model, index);
        items << index.data().toString() + (below.isEmpty() ? QString() : "(" + below + ")");
    }
    return items.join(' ');
}

class TestDirectoryModel : public QObject
{
    Q_OBJECT

private slots:
    void tree()
    {
        Catalogue catalogue;
        for (const char *directory : {"/d/one", "/d/one/x", "/d/one/x/y", "/d/one/x10", "/d/one/x2",
                                      "/d/two/A/1", "/d/two/A/3", "/d/two/a/2", "/d/two/a/4", "/e"})
            catalogue.add(QLatin1String(directory) + "/a.pes");
        catalogue.project->setSmartFolders({"/d/two", "/d/\"<a>\n", "/d/one"}, {});
        DirectoryModel model(catalogue.project);
        model.refresh();
        model.refresh();
        QCOMPARE(text(model), "\"<a>\n one(x(y) x2 x10) two(A(1 3) a(2 4))");
        const QModelIndex index = model.indexForPath("/d/one/x/y");
        QCOMPARE(index.data().toString(), "y");
        QCOMPARE(model.absoluteFilePath(index), "/d/one/x/y");
        QVERIFY(!model.indexForPath("/d").isValid());
    }

    void namesakesTellTheirParents_data()
    {
        const Rows<QStringList, QString> row("folders", "tree");
        row("two", {"/mnt/usb1/Roses", "/home/me/Roses", "/d/Tulips"},
            "Tulips Roses (me) Roses (usb1)");
        row("parents alike", {"/a/x/R", "/b/x/R", "/a/y/R"}, "R (a/x) R (a/y) R (b/x)");
        row("one right below the root", {"/R", "/a/R"}, "R (a) R (/)");
        row("the same twice", {"/a/R", "/a/R"}, "R R");
    }

    void namesakesTellTheirParents()
    {
        QFETCH(QStringList, folders);
        Catalogue catalogue;
        catalogue.project->setSmartFolders(folders, {});
        DirectoryModel model(catalogue.project);
        model.refresh();
        QTEST(text(model), "tree");
    }

    void neighbours_data()
    {
        const Rows<QStringList, QStringList, QString> row("directories", "folders", "shown");
        row("a name that begins as another",
            {"/d/Rose", "/d/Rose/wild", "/d/Rose-2", "/d/Rose-2/wild"}, {"/d/Rose", "/d/Rose-2"},
            "Rose(wild) Rose-2(wild)");
        row("outside of all folders", {"/a/b", "/d/one/x", "/d/outside/y", "/d/two/z"},
            {"/d/one", "/d/two"}, "one(x) two(z)");
        row("a folder within another", {"/d/x", "/d/x/y", "/d/z"}, {"/d", "/d/x"}, "d(x(y) z) x");
        row("everything", {"/d/x", "/e"}, {"/"}, "/(d(x) e)");
    }

    void neighbours()
    {
        QFETCH(QStringList, directories);
        QFETCH(QStringList, folders);
        Catalogue catalogue;
        for (const QString &directory : directories)
            catalogue.add(directory + "/a.pes");
        catalogue.project->setSmartFolders(folders, {});
        DirectoryModel model(catalogue.project);
        model.refresh();
        QTEST(text(model), "shown");
        for (const QString &directory : directories) {
            const QModelIndex index = model.indexForPath(directory);
            QVERIFY(!index.isValid() || model.absoluteFilePath(index) == directory);
        }
    }

    void hostileDepth()
    {
        Catalogue catalogue;
        catalogue.add("/d" + QStringLiteral("/x").repeated(200000));
        catalogue.project->setSmartFolders({"/d"}, {});
        DirectoryModel model(catalogue.project);
        model.refresh();
        QVERIFY(model.indexForPath("/d/x/x").isValid());
    }
};

QTEST_MAIN(TestDirectoryModel)
#include "tst_directorymodel.moc"
