#include "app/application/HooplineApplication.h"
#include "base/files/FileLock.h"
#include "base/GlobalSettings.h"
#include "preview/grid/GridGraphicsView.h"
#include "support/DstDesign.h"
#include "support/MessageBoxes.h"
#include "ui/CatalogueWait.h"
#include "ui/MainWindow.h"
#include "ui/NoticeBar.h"
#include "ui/panels/DirectoriesBox.h"

#include <QFileOpenEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTreeView>
#include <QtTest>

/** What becomes of files and folders that are opened from outside. */
class OpeningTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { delete m_window; }
    void showsOrOffers_data();
    void showsOrOffers();
    void leavesFiltersThatHideNothing();
    void opensAWindowForIt();
    void scrollsToTheDesign();
    void waitsForTheEndOfAScan();
    void goesWithoutACatalogueWhenCancelled();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    bool write(const QString &name) const;
    void open(const QStringList &names);
    GridPreviewScene *scene() const
    {
        return m_window->findChild<GridGraphicsView *>()->gridScene();
    }
    QStringList selected() const;
    QString shownFolder() const;
    QLineEdit *searchField() const
    {
        return m_window->findChild<QLineEdit *>("searchTextLineEdit");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QPointer<MainWindow> m_window;
};

void OpeningTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    GSettings().flushSettings({});
    GSettings().setAutoUpdatesEnabled(false);
    GlobalSettings().setApplicationDataPath(path("data"));
    for (const char *folder : {"data", "a/sub", "b", "new"})
        QDir(m_folder->path()).mkpath(folder);
    for (const char *name : {"a/one.dst", "a/sub/two.dst", "b/three.dst", "new/four.dst"})
        QVERIFY(write(name));
    QVERIFY(QFile::link(path("a"), path("link")));
    m_window = new MainWindow;
    m_window->show();
    m_window->filesDropped({path("a"), path("b")});
    // After the catalogue was read.
    QVERIFY(write("a/late.DST"));
    QVERIFY(write("a/text.txt"));
}

bool OpeningTest::write(const QString &name) const
{
    return DstDesign::square(name.toLatin1()).writeTo(path(name));
}

/** As the desktop asks for it. */
void OpeningTest::open(const QStringList &names)
{
    for (const QString &name : names) {
        QFileOpenEvent event(path(name));
        QCoreApplication::sendEvent(qApp, &event);
    }
    QCoreApplication::processEvents();
}

QStringList OpeningTest::selected() const
{
    QStringList names;
    for (int i = 0; i < scene()->count(); ++i) {
        if (scene()->isSelected(i))
            names.append(QFileInfo(scene()->fileAt(i)->absoluteFilePath()).fileName());
    }
    return names;
}

QString OpeningTest::shownFolder() const
{
    auto *tree = m_window->findChild<DirectoriesBox *>()->findChild<QTreeView *>();
    const QModelIndexList rows = tree->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.first().data().toString();
}

void OpeningTest::showsOrOffers_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("agree");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QString>("folder");
    const QString addFor = "Add the folder of '%1' to your collection?";
    const QString add = "Add %1 folder(s) to your collection?";
    QTest::newRow("design") << QStringList{"a/one.dst"} << true << "" << QStringList{"one.dst"}
                            << "a";
    QTest::newRow("design of another folder")
        << QStringList{"b/three.dst"} << true << "" << QStringList{"three.dst"} << "b";
    QTest::newRow("designs of several folders") << QStringList{"b/three.dst", "a/one.dst"} << true
                                                << "" << QStringList{"one.dst", "three.dst"} << "";
    QTest::newRow("by a link") << QStringList{"link/sub/two.dst"} << true << ""
                               << QStringList{"two.dst"} << "sub";
    QTest::newRow("folder") << QStringList{"b"} << true << "" << QStringList{} << "b";
    QTest::newRow("folder in one") << QStringList{"a/sub/"} << true << "" << QStringList{} << "sub";
    QTest::newRow("new folder") << QStringList{"new"} << true << add.arg(1) << QStringList{}
                                << "new";
    QTest::newRow("new folder, not wanted")
        << QStringList{"new"} << false << add.arg(1) << QStringList{} << "a";
    QTest::newRow("design of a new folder")
        << QStringList{"new/four.dst"} << true << addFor.arg("four.dst") << QStringList{"four.dst"}
        << "new";
    QTest::newRow("designs new and old, not wanted")
        << QStringList{"new/four.dst", "a/one.dst"} << false << addFor.arg("four.dst")
        << QStringList{"one.dst"} << "a";
    QTest::newRow("design not read yet")
        << QStringList{"a/late.DST"} << true << "1 design(s) were not read yet. Rescan the folders?"
        << QStringList{"late.DST"} << "a";
    QTest::newRow("no design") << QStringList{"a/text.txt"} << true << "" << QStringList{} << "a";
}

void OpeningTest::showsOrOffers()
{
    QFETCH(QStringList, names);
    QFETCH(bool, agree);
    QFETCH(QString, asked);
    QFETCH(QStringList, shown);
    QFETCH(QString, folder);
    QCOMPARE(shownFolder(), QStringLiteral("a"));
    searchField()->setText("nothing of that name");
    const MessageBoxes boxes(agree ? QMessageBox::Yes : QMessageBox::No);
    open(names);
    QCOMPARE(boxes.text(), asked);
    QCOMPARE(boxes.count(), asked.isEmpty() ? 0 : 1);
    QCOMPARE(selected(), shown);
    QCOMPARE(shownFolder(), folder);
    QCOMPARE(searchField()->text().isEmpty(), !shown.isEmpty());
    QCOMPARE(m_window->findChild<NoticeBar *>()->isTelling("open"), names.first().endsWith("txt"));
}

void OpeningTest::leavesFiltersThatHideNothing()
{
    searchField()->setText("two");
    open({"a/sub/two.dst"});
    QCOMPARE(selected(), QStringList("two.dst"));
    QCOMPARE(shownFolder(), QStringLiteral("a"));
    QCOMPARE(searchField()->text(), QStringLiteral("two"));
}

void OpeningTest::opensAWindowForIt()
{
    delete m_window;
    HooplineApplication::setWindowFactory([this] { return m_window = new MainWindow; });
    open({"b/three.dst"});
    QVERIFY(m_window && m_window->isVisible());
    QCOMPARE(selected(), QStringList("three.dst"));
}

void OpeningTest::scrollsToTheDesign()
{
    for (int i = 0; i < 60; ++i)
        QVERIFY(write(QStringLiteral("a/m%1.dst").arg(i)));
    m_window->rescanDirectories();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    open({"a/one.dst"});
    auto *view = m_window->findChild<GridGraphicsView *>();
    const int index = scene()->currentIndex();
    QVERIFY(index >= 60);
    QVERIFY(scene()->isSelected(index));
    const QRect port(view->viewport()->mapToGlobal(QPoint()), view->viewport()->size());
    QVERIFY(port.contains(view->screenRectOf(index).center()));
}

void OpeningTest::waitsForTheEndOfAScan()
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

void OpeningTest::goesWithoutACatalogueWhenCancelled()
{
    FileLock scan(path("lock"), "hoopline-cli");
    QCOMPARE(scan.tryLock(), FileLock::Held);
    FileLock lock(path("lock"), "hoopline-organizer");
    const MessageBoxes boxes(QMessageBox::Cancel);
    QVERIFY(!CatalogueWait::forLock(lock));
    QVERIFY(!lock.isHeld());
}

int main(int argc, char **argv)
{
    Q_INIT_RESOURCE(tnw_resources);
    Q_INIT_RESOURCE(hoopline_resources);
    HooplineApplication application(argc, argv);
    // The window of the start is one of the program's own; it is not what is tested.
    QPointer<MainWindow> first;
    HooplineApplication::setWindowFactory([&first] { return first = new MainWindow; });
    GSettings().setAutoUpdatesEnabled(false);
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
    QCoreApplication::processEvents();
    delete first;
    OpeningTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_opening.moc"
