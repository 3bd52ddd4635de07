#include "PanelFixture.h"

#include "catalogue/records/Thread.h"
#include "ui/panels/ColorsBox.h"
#include "ui/panels/ElidedLabel.h"
#include "ui/panels/PropertiesBox.h"

#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>

/** What stays where it is, and whole, in the panel on the right. */
class tst_panellayout : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_project = projectOfSize(2); }

    // Whoever clicks through designs aims at the notes.
    void notesStayWhenTheNameGoes()
    {
        PropertiesBox box(nullptr, m_project);
        box.resize(260, 600);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        file(0)->setName("Cushion");
        const auto place = [&box](const QList<QSharedPointer<IFile>> &files) {
            box.setFiles(files);
            QCoreApplication::processEvents();
            return box.findChild<QTextEdit *>()->mapTo(&box, QPoint());
        };
        const QPoint withName = place({file(0)});
        QVERIFY(box.findChildren<ElidedLabel *>().at(1)->isVisible());
        QCOMPARE(place({file(1)}), withName);
        QCOMPARE(place({file(0), file(1)}), withName);
        QCOMPARE(place({}), withName);
    }

    void longThreadNameLeavesTheChart()
    {
        auto thread = QSharedPointer<Thread>::create(m_project.data());
        thread->setColor(Qt::red);
        thread->setColorName("Very light rose of a summer evening ");
        file(0)->setThreads({thread});
        ColorsBox box(nullptr);
        box.setFiles({file(0)});
        box.resize(200, 300);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        auto *tree = box.findChild<QTreeWidget *>();
        const QModelIndex chart = tree->model()->index(0, 2);
        const int needed = tree->fontMetrics().horizontalAdvance(chart.data().toString());
        QVERIFY(tree->visualRect(chart).left() + needed <= tree->viewport()->width());
        // With nothing to read the captions are whole.
        box.setFiles({});
        const int caption = tree->fontMetrics().horizontalAdvance(tree->headerItem()->text(1));
        QVERIFY(tree->columnWidth(1) > caption);
    }

    void longNamesDontWidenThePanel()
    {
        PropertiesBox box(nullptr, m_project);
        const int before = box.minimumSizeHint().width();
        file(0)->setAbsoluteFilePath("/a/" + QString(500, QLatin1Char('W')));
        file(0)->setName("<b>" + QString(500, QLatin1Char('M')));
        file(0)->setTags({QString(500, QLatin1Char('T'))});
        box.setFiles({file(0)});
        QVERIFY(box.minimumSizeHint().width() <= before + 40);
        box.resize(260, 600);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
    }

private:
    QSharedPointer<IFile> file(int index) const { return m_project->files().at(index); }

    QSharedPointer<Project> m_project;
};

QTEST_MAIN(tst_panellayout)
#include "tst_panellayout.moc"
