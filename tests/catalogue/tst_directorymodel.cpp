#include "catalogue/Catalogue.h"
#include "catalogue/models/DirectoryModel.h"

#include <QtTest>

class TestDirectoryModel : public QObject
{
    Q_OBJECT

private slots:
    void tree();
    void emptyFolderShows();
    void namesThatDifferInCase();
    void paths();
    void hostileDepth();
};

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

void TestDirectoryModel::tree()
{
    Catalogue catalogue;
    for (const char *path :
         {"/d/one/a.pes", "/d/one/x/b.pes", "/d/one/x/y/c.pes", "/d/one/x2/b.pes",
          "/d/one/x10/b.pes", "/d/two/z/c.pes", "/elsewhere/q.pes"})
        catalogue.add(path);
    catalogue.project->setSmartFolders({"/d/two", "/d/one"}, {});
    DirectoryModel model(catalogue.project);
    model.refresh();
    model.refresh();
    QCOMPARE(text(model), QStringLiteral("one(x(y) x2 x10) two(z)"));
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Directories"));
    const QModelIndex index = model.indexForPath("/d/one/x/y");
    QCOMPARE(index.data().toString(), QStringLiteral("y"));
    QCOMPARE(model.absoluteFilePath(index), QStringLiteral("/d/one/x/y"));
    QVERIFY(!model.indexForPath("/d").isValid());
}

void TestDirectoryModel::emptyFolderShows()
{
    Catalogue catalogue;
    catalogue.project->setSmartFolders({"/d/\"a\" & <b>\n"}, {});
    DirectoryModel model(catalogue.project);
    model.refresh();
    QCOMPARE(text(model), QStringLiteral("\"a\" & <b>\n"));
}

void TestDirectoryModel::namesThatDifferInCase()
{
    Catalogue catalogue;
    for (const char *path : {"/d/A/1/f", "/d/A/3/f", "/d/a/2/f", "/d/a/4/f"})
        catalogue.add(path);
    catalogue.project->setSmartFolders({"/d"}, {});
    DirectoryModel model(catalogue.project);
    model.refresh();
    QCOMPARE(text(model), QStringLiteral("d(A(1 3) a(2 4))"));
}

void TestDirectoryModel::paths()
{
    QCOMPARE(DirectoryModel::lastElementOfPath("/a/b"), QStringLiteral("b"));
    QCOMPARE(DirectoryModel::lastElementOfPath("b"), QStringLiteral("b"));
    QCOMPARE(DirectoryModel::pathWithoutLastElement("/a/b"), QStringLiteral("/a"));
    QStringList paths = {"/a", "/a/b//c", "/ab", "/c"};
    const QList<QStringList> taken = DirectoryModel::takePathsOfSmartfolder("/a", paths);
    QCOMPARE(taken, QList<QStringList>({{"b", "c"}, {"b"}}));
    QCOMPARE(paths, QStringList("/c"));
}

void TestDirectoryModel::hostileDepth()
{
    Catalogue catalogue;
    catalogue.add("/d" + QStringLiteral("/x").repeated(200000));
    catalogue.project->setSmartFolders({"/d"}, {});
    DirectoryModel model(catalogue.project);
    model.refresh();
    QVERIFY(model.indexForPath("/d/x/x").isValid());
}

QTEST_MAIN(TestDirectoryModel)
#include "tst_directorymodel.moc"
