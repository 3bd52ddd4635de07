#include "PanelFixture.h"

#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "ui/CenterView.h"
#include "ui/SheetCount.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QTemporaryDir>
#include <QtTest>

/** The sheet with what is around it. */
class tst_centerview : public QObject
{
    Q_OBJECT

private slots:
    void takesFolders_data();
    void takesFolders();
    void countsTheDesigns();
};

void tst_centerview::takesFolders_data()
{
    QTest::addColumn<int>("designs");
    QTest::newRow("on the hint that invites them") << 0;
    QTest::newRow("on the cards") << 30;
}

void tst_centerview::takesFolders()
{
    QFETCH(int, designs);
    const QTemporaryDir folder;
    const QSharedPointer<Project> project = projectOfSize(designs);
    FilterSelectionModel models(project);
    CenterView center(nullptr, project, &models);
    center.resize(600, 500);
    center.show();
    QVERIFY(QTest::qWaitForWindowExposed(&center));
    QWidget *target = center.childAt(center.rect().center());
    while (target && !target->acceptDrops())
        target = target->parentWidget();
    QCOMPARE(target, &center);

    QSignalSpy dropped(&center, &CenterView::filesDropped);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder.path())});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&center, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&center, &drop);
    QVERIFY(dropped.count() == 1 || dropped.wait());
    QCOMPARE(dropped.first().first().toStringList(), QStringList(folder.path()));
}

void tst_centerview::countsTheDesigns()
{
    const QSharedPointer<Project> project = projectOfSize(0);
    FilterSelectionModel models(project);
    CenterView center(nullptr, project, &models);
    const auto *count = center.findChild<SheetCount *>();
    QCOMPARE(count->text(), QStringLiteral("0 designs"));
    project->setFiles(projectOfSize(2)->files());
    QCOMPARE(count->text(), QStringLiteral("2 designs"));
    project->files().first()->setFavorite(true);
    models.filter()->setFavoritesOnly(true);
    center.selectAll();
    QCOMPARE(count->text(), QStringLiteral("1 of 2 designs \u00b7 1 selected"));
}

QTEST_MAIN(tst_centerview)
#include "tst_centerview.moc"
