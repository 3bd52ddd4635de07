#include "catalogue/Catalogue.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"

#include <QtTest>

class TestSelectionModel : public QObject
{
    Q_OBJECT

private slots:
    void announcesAlways();
    void dropsWhatLeavesTheCatalogue();
};

void TestSelectionModel::announcesAlways()
{
    Catalogue catalogue;
    const auto file = catalogue.add("/a");
    catalogue.add("/b");
    const FilterSelectionModel models(catalogue.project);
    QStringList told;
    connect(models.selection(), &ISelectionModel::selectionChanged,
            [&told](const auto &files) { told << Catalogue::paths(files); });
    models.selection()->setSelection({file});
    models.selection()->setSelection({file});
    models.selection()->clearSelection();
    models.selection()->clearSelection();
    // Also what isn't shown.
    models.filter()->setDirectory("/a");
    models.selection()->selectAll();
    QCOMPARE(told, QStringList({"/a", "/a", "", "", "/a /b"}));
}

void TestSelectionModel::dropsWhatLeavesTheCatalogue()
{
    Catalogue catalogue;
    const auto a = catalogue.add("/a");
    const auto b = catalogue.add("/b");
    catalogue.add("/c");
    const FilterSelectionModel models(catalogue.project);
    models.selection()->setSelection({b, a});
    QStringList told;
    connect(models.selection(), &ISelectionModel::selectionChanged,
            [&told](const auto &files) { told << Catalogue::paths(files); });
    catalogue.project->filesProp()->removeWithoutUndo(2);
    catalogue.add("/d");
    QVERIFY(told.isEmpty());
    catalogue.project->filesProp()->removeWithoutUndo(0);
    catalogue.project->clear();
    QCOMPARE(told, QStringList({"/b", ""}));
}

QTEST_MAIN(TestSelectionModel)
#include "tst_selectionmodel.moc"
