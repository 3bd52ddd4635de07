#include "catalogue/Catalogue.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"

#include <QtTest>

class TestSelectionModel : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatIsSelected()
    {
        Catalogue catalogue;
        const auto a = catalogue.add("/a");
        const auto b = catalogue.add("/b");
        catalogue.add("/c");
        const FilterSelectionModel models(catalogue.project);
        QStringList told;
        connect(models.selection(), &ISelectionModel::selectionChanged,
                [&told](const auto &files) { told << Catalogue::paths(files); });
        models.selection()->clearSelection();
        models.filter()->setDirectory("/a");
        models.selection()->selectAll();
        models.selection()->setSelection({b, a});
        models.selection()->setSelection({b, a});
        // Also what isn't shown, and also when nothing changes.
        QCOMPARE(told, QStringList({"", "/a /b /c", "/b /a", "/b /a"}));
        told.clear();
        catalogue.project->filesProp()->removeWithoutUndo(2);
        catalogue.add("/d");
        QVERIFY(told.isEmpty());
        catalogue.project->filesProp()->removeWithoutUndo(0);
        catalogue.project->clear();
        QCOMPARE(told, QStringList({"/b", ""}));
    }
};

QTEST_MAIN(TestSelectionModel)
#include "tst_selectionmodel.moc"
