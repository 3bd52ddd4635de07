#include "MainWindowTest.h"

#include "app/frame/GAction.h"
#include "base/Error.h"
#include "catalogue/watch/FolderWatcher.h"
#include "preview/grid/GridPreviewScene.h"
#include "preview/grid/PreviewBrowser.h"
#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "ui/design/DesignWindow.h"
#include "ui/EmptyHint.h"
#include "ui/NoticeBar.h"
#include "ui/panels/DirectoriesBox.h"
#include "ui/panels/SavedSearchesBox.h"
#include "ui/ProgressDialog.h"
#include "ui/SortMenu.h"
#include "ui/StatusLine.h"

#include <QtTest>
#include <QtWidgets>

class tst_mainwindow : public MainWindowTest
{
    Q_OBJECT

private slots:
    void init() { makeProfile(); }

    void cleanup() { delete m_window; }

    void startsEmpty()
    {
        open();
        // The side bars are as wide as a text, in whatever font there is.
        QCOMPARE(m_window->size(), QSize(1024, 700).expandedTo(m_window->minimumSizeHint()));
        QVERIFY(!action("&Remove folder")->isEnabled());
        QVERIFY(!catalogue().isEmpty());
    }

    void sortsAndRemembersIt()
    {
        const QString path = makeFolder("designs", {});
        DstDesign::square("a", 10).writeTo(path + "/a.dst");
        DstDesign::square("b", 30).writeTo(path + "/b.dst");
        DstDesign::square("c", 20).writeTo(path + "/c.dst");
        const auto order = [this] {
            QString names;
            const auto *cards = part<GridPreviewScene>();
            for (int i = 0; i < cards->count(); ++i)
                names += QFileInfo(cards->fileAt(i)->absoluteFilePath()).baseName();
            return names;
        };
        open();
        m_window->filesDropped({path});
        QCOMPARE(order(), "abc");
        delete m_window;

        open();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTest::keyClick(m_window, Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(order(), "acb");
        const auto choices = part<SortMenu>()->actions();
        choices.constLast()->trigger();
        QCOMPARE(order(), "bca");
        delete m_window;

        open();
        QCOMPARE(order(), "bca");
        QVERIFY(part<SortMenu>()->actions().at(1)->isChecked());
        QVERIFY(part<SortMenu>()->actions().constLast()->isChecked());
    }

    /** As a version without the box stored it: two heights for three boxes. */
    void oldLayoutLeavesRoomForSavedSearches()
    {
        {
            QSplitter old(Qt::Vertical);
            for (int i = 0; i < 2; ++i)
                old.addWidget(new QWidget);
            old.setSizes({300, 300});
            GSettings().setValue("windowSettings/leftSidebarSplitter", old.saveState());
        }
        open();
        auto *box = part<SavedSearchesBox>();
        QVERIFY(box->isVisible());
        QVERIFY(box->height() > box->minimumSizeHint().height());
    }

    void addsDroppedFoldersOnly()
    {
        const QString roses = makeFolder("roses", {"rose.dst"});
        const QString leaves = makeFolder("leaves", {"leaf.dst"});
        open();
        m_window->filesDropped(
            {roses + QLatin1Char('/'), leaves, roses + "/rose.dst", "/no/such/folder"});
        QVERIFY(action("&Remove folder")->isEnabled());
        QCOMPARE(GlobalSettings().lastImportPath(), roses);
        QVERIFY(catalogue().contains(leaves));
        QVERIFY(catalogue().contains(roses));
        QVERIFY(!catalogue().contains(roses + "/</"));
        QVERIFY(!part<ProgressDialog>()->isVisible());

        const QString before = catalogue();
        m_window->filesDropped({roses + "/rose.dst"});
        QCOMPARE(catalogue(), before);
    }

    void removesFolders()
    {
        const QString roses = makeFolder("roses", {"rose.dst"});
        makeFolder("roses/wild", {"wild rose.dst"});
        open();
        m_window->filesDropped({roses});
        // A folder within one is not on the list.
        auto *tree = part<DirectoriesBox>()->findChild<QTreeView *>();
        const QModelIndex folder = tree->model()->index(0, 0);
        tree->setCurrentIndex(tree->model()->index(0, 0, folder));
        QVERIFY(!action("&Remove folder")->isEnabled());
        tree->setCurrentIndex(folder);
        MessageBoxes boxes(QMessageBox::No);
        action("&Remove folder")->trigger();
        QCOMPARE(boxes.text(), "Remove selected folder from list?");
        QVERIFY(catalogue().contains(roses));
        boxes.press(QMessageBox::Yes);
        action("&Remove folder")->trigger();
        QVERIFY(!catalogue().contains(roses));
        QVERIFY(!action("&Remove folder")->isEnabled());
        QVERIFY(QFile::exists(roses + "/rose.dst"));
    }

    void keepsCatalogueAndLayout()
    {
        const QString roses = makeFolder("roses", {"rose.dst", "red rose.dst"});
        open();
        m_window->filesDropped({roses});
        m_window->resize(1100, 720);
        const QString stored = catalogue();
        QVERIFY(m_window->closeWindow());
        QTRY_VERIFY(!m_window);
        QCOMPARE(catalogue(), stored);

        open();
        QCOMPARE(m_window->size(), QSize(1100, 720));
        QVERIFY(action("&Remove folder")->isEnabled());
        action("Select all")->trigger();
        QCOMPARE(scene()->selectedFiles().size(), 2);
        for (const char *key :
             {"mainWindowSplitter", "leftSidebarSplitter", "RightSideBarSplitter"})
            QVERIFY(
                GSettings().contains(QStringLiteral("windowSettings/%1").arg(QLatin1String(key))));
    }

    void emptySheetLeadsToAFolder()
    {
        open();
        QVERIFY(hint()->isVisible());
        QCOMPARE(hintText(), "Add a folder with embroidery designs to begin.");
        bool asked = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&asked] {
            if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
                asked = true;
                dialog->reject();
            }
        });
        timer.start(10);
        hintButton()->setFocus();
        QTest::keyClick(hintButton(), Qt::Key_Return);
        QVERIFY(asked);
        QVERIFY(hint()->isVisible());
    }

    void emptySheetTellsOfEmptyFolders()
    {
        const QString bare = makeFolder("bare", {});
        const QString roses = makeFolder("roses", {"rose.dst"});
        open();
        m_window->filesDropped({bare});
        QVERIFY(hintText().startsWith("No embroidery designs were found in your folders."));
        m_window->filesDropped({roses});
        QVERIFY(!hint()->isVisible());
        auto *tree = part<DirectoriesBox>()->findChild<QTreeView *>();
        tree->setCurrentIndex(tree->model()->index(0, 0));
        QCOMPARE(hintText(), "No embroidery designs were found in this folder.");
        hintButton()->click();
        QVERIFY(!hint()->isVisible());
        QVERIFY(!tree->selectionModel()->hasSelection());
    }

    // What it would tell while the designs are being read may be wrong a second later.
    void emptySheetIsSilentDuringAScan()
    {
        open();
        QVERIFY(hint()->isVisible());
        int looks = 0;
        bool told = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            ++looks;
            told = told || hint()->isVisible();
        });
        timer.start(0);
        m_window->filesDropped({makeFolder("roses", {"a.dst"})});
        timer.stop();
        QVERIFY(looks > 0);
        QVERIFY(!told);
    }

    // The events that a scan lets in may bring the next folder, but never a second scan.
    void foldersDroppedDuringAScanFollowIt()
    {
        const QString roses = makeFolder("roses", {"rose.dst"});
        const QString leaves = makeFolder("leaves", {"leaf.dst"});
        open();
        bool dropped = false;
        QTimer::singleShot(0, m_window, [&] {
            m_window->filesDropped({leaves});
            action("&Rescan")->trigger();
            dropped = true;
            QVERIFY(!hint()->isVisible());
        });
        m_window->filesDropped({roses});
        QVERIFY(dropped);
        QVERIFY(catalogue().contains(roses));
        QVERIFY(!catalogue().contains(leaves));
        QTRY_VERIFY(catalogue().contains(leaves));
    }

    void emptySheetLeadsOutOfTheFilter()
    {
        const QString roses = makeFolder("roses", {"rose.dst"});
        const QString leaves = makeFolder("leaves", {"leaf.dst"});
        open();
        m_window->filesDropped({roses, leaves});
        auto *search = part<QLineEdit>("searchTextLineEdit");
        auto *type = part<QComboBox>("fileTypeCombobox");
        type->setCurrentText("hus");
        QTest::keyClicks(search, "tulip");
        QVERIFY(hint()->isVisible());
        QCOMPARE(hintText(), "No design matches the filter.");
        m_window->resize(1200, 800);
        QTRY_COMPARE(hint()->size(), hint()->parentWidget()->size());

        hintButton()->click();
        QVERIFY(!hint()->isVisible());
        QVERIFY(scene()->count() > 0);
        action("Select all")->trigger();
        QCOMPARE(scene()->selectedFiles().size(), 2);
        QVERIFY(search->text().isEmpty());
        QCOMPARE(m_window->focusWidget(), scene()->views().first());
    }

    void opensADesignInItsWindow()
    {
        const QString roses = makeFolder("roses", {"rose.dst", "white rose.dst"});
        open();
        m_window->filesDropped({roses});
        // Anew, as the progress dialog has taken the focus.
        QVERIFY(m_window->closeWindow());
        QTRY_VERIFY(!m_window);
        open();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTest::keySequence(m_window, QKeySequence(QKeySequence::SelectAll));
        QTest::keySequence(m_window, QKeySequence(QKeySequence::Open));
        const QPointer<DesignWindow> design = shownDesign();
        QVERIFY(design && QTest::qWaitForWindowActive(design));
        QVERIFY(design->windowTitle().contains("rose.dst"));
        // The grid goes along with it.
        scene()->selectNone();
        QTest::keyClick(design, Qt::Key_Right);
        QCOMPARE(scene()->selectedFiles().size(), 1);
        QTest::keyClick(design, Qt::Key_Escape);
        QVERIFY(!design->isVisible());
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTest::keySequence(m_window, QKeySequence(QKeySequence::Open));
        QVERIFY(design->isVisible());
        QVERIFY(design->windowTitle().contains("white rose.dst"));
        // It does not outlive the window that it came from.
        QVERIFY(m_window->closeWindow());
        QTRY_VERIFY(!m_window);
        QVERIFY(!design);
    }

    void tellsInTheStatusLine()
    {
        const QString roses = makeFolder("roses", {"rose.dst", "leaf.dst"});
        open();
        auto *line = part<StatusLine>();
        const auto says = [line](const QString &text) { return ::says(*line, text); };
        bool toldOfTheScan = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this,
                [&] { toldOfTheScan = toldOfTheScan || says("Scanning..."); });
        timer.start(0);
        m_window->filesDropped({roses});
        QVERIFY(toldOfTheScan);
        QVERIFY(!says("Scanning..."));
        QTRY_VERIFY(says("2 designs · 16 stitches · 2 colors"));
        action("Select all")->trigger();
        QTRY_VERIFY(says("2 designs · 2 selected · 16 stitches · 2 colors"));
        QVERIFY(says("100%"));
        action("&Zoom in")->trigger();
        QVERIFY(says("150%"));
        QTest::keyClick(line->findChild<QSlider *>(), Qt::Key_Home);
        QVERIFY(says(QStringLiteral("%1%").arg(PreviewBrowser::ScaleFactors.first())));
    }

    void closesByKeyAndComesBack()
    {
        open();
        QTest::keySequence(m_window, QKeySequence(QKeySequence::Close));
        QTRY_VERIFY(!m_window);
        HooplineApplication::setWindowFactory([this] { return m_window = new MainWindow; });
        HooplineApplication::instance()->onClickOnDock();
        QVERIFY(m_window && m_window->isVisible());
    }

    void asksWhenTheCatalogueCannotBeUsed_data()
    {
        const Rows<QString, bool> row("button", "opens");
        row("put right", "Try again", true);
        row("given up", "Quit", false);
    }

    void asksWhenTheCatalogueCannotBeUsed()
    {
        QFETCH(QString, button);
        QFETCH(bool, opens);
        QVERIFY(QDir().mkpath(catalogueFile() + "/x"));
        int asked = 0;
        const MessageBoxes boxes({button}, [&] {
            // The first answer puts nothing right.
            if (++asked == 2)
                QVERIFY(QDir(catalogueFile()).removeRecursively());
        });
        if (opens)
            open();
        else
            QVERIFY_EXCEPTION_THROWN(MainWindow window, AbortException);
        QCOMPARE(asked, opens ? 2 : 1);
        QCOMPARE(HooplineApplication::instance()->mainWindowCount(), opens ? 1 : 0);
    }

    void offersARescanWhenAFolderHasChanged()
    {
        const QString roses = makeFolder("roses", {"rose.dst"});
        open();
        auto *watcher = part<FolderWatcher>();
        watcher->setDelay(0);
        QSignalSpy watched(watcher, &FolderWatcher::folderWatched);
        m_window->filesDropped({roses});
        if (watched.isEmpty() && !watched.wait())
            QSKIP("The system watches no folders.");
        const QString before = catalogue();
        makeFolder("roses", {"bud.dst"});
        QTRY_COMPARE(notice(), "The folder roses has changed.");
        QCOMPARE(catalogue(), before);

        part<NoticeBar>()->findChildren<QPushButton *>().last()->click();
        QVERIFY(catalogue().contains("bud.dst"));
        QCOMPARE(notice(), "1 new");
    }

    void tellsWhatAScanDid()
    {
        const QString roses = makeFolder("roses", {"rose.dst", "leaf.dst"});
        QFile broken(roses + "/broken.hus");
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("junk") == 4);
        broken.close();
        open();
        m_window->filesDropped({roses});
        QCOMPARE(notice(), "3 new, 1 not readable");
        QVERIFY(QFile::rename(roses + "/rose.dst", roses + "/r.dst"));
        QVERIFY(broken.remove());
        action("&Rescan")->trigger();
        QCOMPARE(notice(), "1 moved, 1 gone");
        action("&Rescan")->trigger();
        QCOMPARE(notice(), "Nothing has changed.");
    }

    void stoppedImportLeadsToTheRest()
    {
        constexpr int count = 150;
        QStringList names;
        for (int i = 0; i < count; ++i)
            names.append(QStringLiteral("%1.dst").arg(i));
        const QString roses = makeFolder("roses", names);
        open();
        auto *progress = part<ProgressDialog>();
        QTimer timer;
        connect(&timer, &QTimer::timeout, progress, [progress] {
            if (progress->findChild<QLabel *>()->text().startsWith("Loading"))
                progress->reject();
        });
        timer.start(0);
        m_window->filesDropped({roses});
        timer.stop();
        QVERIFY(!progress->isVisible());
        const QString told = notice();
        QVERIFY2(QRegularExpression("^Stopped: 150 new, \\d+ not read yet$").match(told).hasMatch(),
                 qPrintable(told));
        const auto buttons = part<NoticeBar>()->findChildren<QPushButton *>();
        buttons.last()->click();
        QVERIFY(scene()->count() > 0);
        action("&Rescan")->trigger();
        QCOMPARE(notice(), "Nothing has changed.");
    }

private:
    QAction *action(const QString &text) const
    {
        const auto actions = m_window->findChildren<GAction *>();
        for (GAction *candidate : actions) {
            if (candidate->text() == text)
                return candidate;
        }
        qFatal("no action %s", qPrintable(text));
    }

    GridPreviewScene *scene() const { return part<GridPreviewScene>(); }

    DesignWindow *shownDesign() const
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            auto *design = qobject_cast<DesignWindow *>(window);
            if (design && design->isVisible())
                return design;
        }
        return nullptr;
    }

    EmptyHint *hint() const { return part<EmptyHint>(); }
    QString hintText() const { return hint()->findChild<QLabel *>()->text(); }
    QPushButton *hintButton() const { return hint()->findChild<QPushButton *>(); }

    /** The text of the last notice. */
    QString notice() const
    {
        const QStringList texts = visibleTexts(*part<NoticeBar>());
        return texts.isEmpty() ? QString() : texts.last();
    }
};

int main(int argc, char **argv)
{
    return MainWindowTest::run<tst_mainwindow>(argc, argv);
}

#include "tst_mainwindow.moc"
