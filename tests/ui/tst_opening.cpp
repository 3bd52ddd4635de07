#include "MainWindowTest.h"

#include "base/files/FileLock.h"
#include "preview/grid/GridGraphicsView.h"
#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "ui/CatalogueWait.h"
#include "ui/NoticeBar.h"
#include "ui/panels/DirectoriesBox.h"

#include <QtTest>
#include <QtWidgets>

/** What becomes of files and folders that are opened from outside. */
class OpeningTest : public MainWindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        makeProfile();
        makeFolder("a/sub", {"two.dst"});
        makeFolder("a", {"one.dst"});
        makeFolder("b", {"three.dst"});
        makeFolder("new", {"four.dst"});
        QVERIFY(QFile::link(path("a"), path("link")));
        MainWindowTest::open();
        m_window->filesDropped({path("a"), path("b")});
        // After the catalogue was read.
        makeFolder("a", {"late.DST", "text.txt"});
    }

    void cleanup() { delete m_window; }

    void showsOrOffers_data()
    {
        const Rows<QStringList, bool, QString, QStringList, QString> row("names", "agree", "asked",
                                                                         "shown", "folder");
        const QString addFor = "Add the folder of '%1' to your collection?";
        const QString add = "Add %1 folder(s) to your collection?";
        row("design", {"a/one.dst"}, true, "", {"one.dst"}, "a");
        row("design of another folder", {"b/three.dst"}, true, "", {"three.dst"}, "b");
        row("designs of several folders", {"b/three.dst", "a/one.dst"}, true, "",
            {"one.dst", "three.dst"}, "");
        row("by a link", {"link/sub/two.dst"}, true, "", {"two.dst"}, "sub");
        row("folder", {"b"}, true, "", {}, "b");
        row("folder in one", {"a/sub/"}, true, "", {}, "sub");
        row("new folder", {"new"}, true, add.arg(1), {}, "new");
        row("new folder, not wanted", {"new"}, false, add.arg(1), {}, "a");
        row("design of a new folder", {"new/four.dst"}, true, addFor.arg("four.dst"), {"four.dst"},
            "new");
        row("designs new and old, not wanted", {"new/four.dst", "a/one.dst"}, false,
            addFor.arg("four.dst"), {"one.dst"}, "a");
        row("design not read yet", {"a/late.DST"}, true,
            "1 design(s) were not read yet. Rescan the folders?", {"late.DST"}, "a");
        row("no design", {"a/text.txt"}, true, "", {}, "a");
    }

    void showsOrOffers()
    {
        QFETCH(QStringList, names);
        QFETCH(bool, agree);
        QFETCH(QString, asked);
        QFETCH(QStringList, shown);
        QCOMPARE(shownFolder(), "a");
        searchField()->setText("nothing of that name");
        const MessageBoxes boxes(agree ? QMessageBox::Yes : QMessageBox::No);
        open(names);
        QCOMPARE(boxes.text(), asked);
        QCOMPARE(boxes.count(), asked.isEmpty() ? 0 : 1);
        QCOMPARE(selected(), shown);
        QTEST(shownFolder(), "folder");
        QCOMPARE(searchField()->text().isEmpty(), !shown.isEmpty());
        QCOMPARE(part<NoticeBar>()->isTelling("open"), names.first().endsWith("txt"));
    }

    void leavesFiltersThatHideNothing()
    {
        searchField()->setText("two");
        open({"a/sub/two.dst"});
        QCOMPARE(selected(), QStringList("two.dst"));
        QCOMPARE(shownFolder(), "a");
        QCOMPARE(searchField()->text(), "two");
    }

    void opensAWindowForIt()
    {
        delete m_window;
        HooplineApplication::setWindowFactory([this] { return m_window = new MainWindow; });
        open({"b/three.dst"});
        QVERIFY(m_window && m_window->isVisible());
        QCOMPARE(selected(), QStringList("three.dst"));
    }

    void scrollsToTheDesign()
    {
        for (int i = 0; i < 60; ++i)
            makeFolder("a", {QStringLiteral("m%1.dst").arg(i)});
        m_window->rescanDirectories();
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
        open({"a/one.dst"});
        auto *view = part<GridGraphicsView>();
        const int index = scene()->currentIndex();
        QVERIFY(index >= 60);
        QVERIFY(scene()->isSelected(index));
        const QRect port(view->viewport()->mapToGlobal(QPoint()), view->viewport()->size());
        QVERIFY(port.contains(view->screenRectOf(index).center()));
    }

    void waitsForTheEndOfAScan()
    {
        auto scan = std::make_unique<FileLock>(path("lock"), "hoopline-cli");
        QCOMPARE(scan->tryLock(), FileLock::Held);
        FileLock lock(path("lock"), "hoopline-organizer");
        QString told;
        QTimer::singleShot(0, this, [&] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                told = box->text();
            scan.reset();
        });
        QVERIFY(CatalogueWait::forLock(lock));
        QVERIFY(lock.isHeld());
        QVERIFY2(told.contains("scanned"), qPrintable(told));
    }

    void goesWithoutACatalogueWhenCancelled()
    {
        FileLock scan(path("lock"), "hoopline-cli");
        QCOMPARE(scan.tryLock(), FileLock::Held);
        FileLock lock(path("lock"), "hoopline-organizer");
        const MessageBoxes boxes(QMessageBox::Cancel);
        QVERIFY(!CatalogueWait::forLock(lock));
        QVERIFY(!lock.isHeld());
    }

private:
    /** As the desktop asks for it. */
    void open(const QStringList &names)
    {
        for (const QString &name : names) {
            QFileOpenEvent event(path(name));
            QCoreApplication::sendEvent(qApp, &event);
        }
        QCoreApplication::processEvents();
    }

    GridPreviewScene *scene() const { return part<GridGraphicsView>()->gridScene(); }

    QStringList selected() const
    {
        QStringList names;
        for (int i = 0; i < scene()->count(); ++i) {
            if (scene()->isSelected(i))
                names.append(QFileInfo(scene()->fileAt(i)->absoluteFilePath()).fileName());
        }
        return names;
    }

    QString shownFolder() const
    {
        auto *tree = part<DirectoriesBox>()->findChild<QTreeView *>();
        const QModelIndexList rows = tree->selectionModel()->selectedRows();
        return rows.isEmpty() ? QString() : rows.first().data().toString();
    }

    QLineEdit *searchField() const { return part<QLineEdit>("searchTextLineEdit"); }
};

int main(int argc, char **argv)
{
    return MainWindowTest::run<OpeningTest>(argc, argv);
}

#include "tst_opening.moc"
