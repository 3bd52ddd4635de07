#include "PanelFixture.h"

#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/userdata/RememberedValues.h"
#include "support/Rows.h"
#include "ui/CenterView.h"

#include <QDragEnterEvent>
#include <QtTest>

/** The sheet with what is around it. */
class tst_centerview : public QObject
{
    Q_OBJECT

private slots:
    void takesFolders_data()
    {
        const Rows<int> row("designs");
        row("on the hint that invites them", 0);
        row("on the cards", 30);
    }

    void takesFolders()
    {
        QFETCH(int, designs);
        const QTemporaryDir folder;
        const QSharedPointer<Project> project = projectOfSize(designs);
        FilterSelectionModel models(project);
        RememberedValues values;
        CenterView center(nullptr, project, &models, &values);
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
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(&center, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&center, &drop);
        QVERIFY(dropped.count() == 1 || dropped.wait());
        QCOMPARE(dropped.first().first().toStringList(), QStringList(folder.path()));
    }
};

QTEST_MAIN(tst_centerview)
#include "tst_centerview.moc"
