#include "app/application/HooplineApplication.h"
#include "app/frame/GAction.h"
#include "base/Error.h"
#include "base/GlobalSettings.h"
#include "catalogue/watch/FolderWatcher.h"
#include "preview/grid/GridPreviewScene.h"
#include "preview/grid/PreviewBrowser.h"
#include "support/DstDesign.h"
#include "support/MessageBoxes.h"
#include "ui/design/DesignWindow.h"
#include "ui/EmptyHint.h"
#include "ui/MainWindow.h"
#include "ui/NoticeBar.h"
#include "ui/panels/DirectoriesBox.h"
#include "ui/panels/SavedSearchesBox.h"
#include "ui/ProgressDialog.h"
#include "ui/SortMenu.h"
#include "ui/StatusLine.h"

#include <algorithm>
#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSlider>
#include <QSplitter>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>
#include <QTreeView>
#include <QtTest>

namespace {

QStringList texts(const QList<QAction *> &actions)
{
    QStringList list;
    for (const QAction *action : actions)
        list.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    return list;
}

/** A language in which the letter of a menu stands behind its text, in brackets. */
class LettersBehind : public QTranslator
{
public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        const int letter = text.indexOf(QLatin1Char('&')) + 1;
        return letter > 0 ? QString(text).remove(QLatin1Char('&')) +
                                QStringLiteral("(&%1)").arg(text.at(letter))
                          : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_mainwindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void startsEmpty();
    void offersItsCommands();
    void describesTheButtonsOfItsToolBar();
    void sortsAndRemembersIt();
    void oldLayoutLeavesRoomForSavedSearches();
    void addsDroppedFoldersOnly();
    void removesFolders();
    void disablesRemovalInSubfolders();
    void keepsCatalogueAndLayout();
    void emptySheetLeadsToAFolder();
    void emptySheetTellsOfEmptyFolders();
    void emptySheetIsSilentDuringAScan();
    void foldersDroppedDuringAScanFollowIt();
    void emptySheetLeadsOutOfTheFilter();
    void selectsWhatTheFilterShows();
    void opensADesignInItsWindow();
    void tellsInTheStatusLine();
    void transferAsksForASelection();
    void closesByKeyAndComesBack();
    void asksWhenTheCatalogueCannotBeUsed_data();
    void asksWhenTheCatalogueCannotBeUsed();
    void offersARescanWhenAFolderHasChanged();
    void tellsWhatAScanDid();
    void stoppedImportLeadsToTheRest();

private:
    void open();
    QString createFolder(const QString &name, const QStringList &designs);
    QAction *action(const QString &text) const;
    GridPreviewScene *scene() const;
    DesignWindow *shownDesign() const;
    EmptyHint *hint() const { return m_window->findChild<EmptyHint *>(); }
    QString hintText() const { return hint()->findChild<QLabel *>()->text(); }
    QPushButton *hintButton() const { return hint()->findChild<QPushButton *>(); }
    QString catalogue() const;
    /** The text of the last notice. */
    QString notice() const
    {
        QString text;
        const auto labels = m_window->findChild<NoticeBar *>()->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->isVisible() && !label->text().isEmpty())
                text = label->text();
        }
        return text;
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QPointer<MainWindow> m_window;
};

void tst_mainwindow::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    GSettings().flushSettings({});
    GSettings().setAutoUpdatesEnabled(false);
    GlobalSettings().setApplicationDataPath(m_directory->filePath(QStringLiteral("data")));
    QDir().mkpath(m_directory->filePath(QStringLiteral("data")));
}

void tst_mainwindow::cleanup()
{
    delete m_window;
}

void tst_mainwindow::open()
{
    m_window = new MainWindow;
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

QString tst_mainwindow::createFolder(const QString &name, const QStringList &designs)
{
    const QString path = m_directory->filePath(name);
    QDir().mkpath(path);
    for (const QString &design : designs) {
        if (!DstDesign::square(design.toLatin1()).writeTo(path + QLatin1Char('/') + design))
            qFatal("cannot write %s", qPrintable(design));
    }
    return path;
}

QAction *tst_mainwindow::action(const QString &text) const
{
    const auto actions = m_window->findChildren<GAction *>();
    for (GAction *candidate : actions) {
        if (candidate->text() == text)
            return candidate;
    }
    qFatal("no action %s", qPrintable(text));
}

GridPreviewScene *tst_mainwindow::scene() const
{
    return m_window->findChild<GridPreviewScene *>();
}

DesignWindow *tst_mainwindow::shownDesign() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *design = qobject_cast<DesignWindow *>(window);
        if (design && design->isVisible())
            return design;
    }
    return nullptr;
}

QString tst_mainwindow::catalogue() const
{
    QFile file(m_directory->filePath(QStringLiteral("data/hoopline-organizer.xml")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void tst_mainwindow::startsEmpty()
{
    open();
    // The side bars are as wide as a text, in whatever font there is.
    QCOMPARE(m_window->size(), QSize(1024, 700).expandedTo(m_window->minimumSizeHint()));
    QVERIFY(!action(QStringLiteral("&Remove folder"))->isEnabled());
    QVERIFY(!catalogue().isEmpty());
    action(QStringLiteral("&Zoom in"))->trigger();
    action(QStringLiteral("&Zoom out"))->trigger();
    action(QStringLiteral("Select all"))->trigger();
}

void tst_mainwindow::offersItsCommands()
{
    open();
    QStringList menus;
    const auto menuActions = m_window->menuBar()->actions();
    for (const QAction *menu : menuActions)
        menus.append(texts(menu->menu()->actions()).join(QLatin1Char('|')));
    QCOMPARE(menus,
             (QStringList{QStringLiteral("&Add folder...|&Remove folder|Re&scan\tF5|-|&Open design|"
                                         "Show in file manager|Transfer to machine|-|"
                                         "&Print...|&Export as PDF...|-|&Backups...|"
                                         "Preferences...|Quit"),
                          QStringLiteral("Select all|Select &nothing\tCtrl+D|-|&Favorite\tF|"
                                         "Edit &tags|-|Sea&rch\tCtrl+F|Save search|-|"
                                         "Find &duplicates..."),
                          QStringLiteral("&Sort by|-|&Zoom in|Zoom &out\tCtrl+-|&Normal size|"
                                         "&Enlarged preview\tSpace|-|&Folders and tags|"
                                         "&Properties"),
                          QStringLiteral("Tutorials...|Acknowledgements...|Check for updates ...|-|"
                                         "&About Hoopline Organizer")}));
    QCOMPARE(action(QStringLiteral("Quit"))->shortcut(), QKeySequence(QStringLiteral("Ctrl+Q")));
}

void tst_mainwindow::describesTheButtonsOfItsToolBar()
{
    LettersBehind language;
    QVERIFY(qApp->installTranslator(&language));
    open();
    qApp->removeTranslator(&language);
    QVERIFY(action(QStringLiteral("Rescan(&R)"))->toolTip().endsWith(QLatin1String(" (F5)")));
    const auto buttons = m_window->findChild<QToolBar *>()->findChildren<QToolButton *>();
    for (const QToolButton *button : buttons) {
        const QString texts = button->accessibleName() + QLatin1Char('|') + button->toolTip();
        QVERIFY2(!texts.contains(QRegularExpression(QStringLiteral("\\(\\w\\)|\\.\\.\\."))),
                 qPrintable(texts));
    }
}

void tst_mainwindow::sortsAndRemembersIt()
{
    const QString path = createFolder(QStringLiteral("designs"), {});
    DstDesign::square("a", 10).writeTo(path + QStringLiteral("/a.dst"));
    DstDesign::square("b", 30).writeTo(path + QStringLiteral("/b.dst"));
    DstDesign::square("c", 20).writeTo(path + QStringLiteral("/c.dst"));
    const auto order = [this] {
        QString names;
        const auto *cards = m_window->findChild<GridPreviewScene *>();
        for (int i = 0; i < cards->count(); ++i)
            names += QFileInfo(cards->fileAt(i)->absoluteFilePath()).baseName();
        return names;
    };
    open();
    m_window->filesDropped({path});
    QCOMPARE(order(), QStringLiteral("abc"));
    delete m_window;

    open();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    QTest::keyClick(m_window, Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(order(), QStringLiteral("acb"));
    const auto choices = m_window->findChild<SortMenu *>()->actions();
    choices.constLast()->trigger();
    QCOMPARE(order(), QStringLiteral("bca"));
    delete m_window;

    open();
    QCOMPARE(order(), QStringLiteral("bca"));
    QVERIFY(m_window->findChild<SortMenu *>()->actions().at(1)->isChecked());
    QVERIFY(m_window->findChild<SortMenu *>()->actions().constLast()->isChecked());
}

/** As a version without the box stored it: two heights for three boxes. */
void tst_mainwindow::oldLayoutLeavesRoomForSavedSearches()
{
    {
        QSplitter old(Qt::Vertical);
        for (int i = 0; i < 2; ++i)
            old.addWidget(new QWidget);
        old.setSizes({300, 300});
        GSettings().setValue(QStringLiteral("windowSettings/leftSidebarSplitter"), old.saveState());
    }
    open();
    auto *box = m_window->findChild<SavedSearchesBox *>();
    QVERIFY(box->isVisible());
    QVERIFY(box->height() > box->minimumSizeHint().height());
}

void tst_mainwindow::addsDroppedFoldersOnly()
{
    const QString roses = createFolder(QStringLiteral("roses"), {QStringLiteral("rose.dst")});
    const QString leaves = createFolder(QStringLiteral("leaves"), {QStringLiteral("leaf.dst")});
    open();
    m_window->filesDropped({roses + QLatin1Char('/'), leaves, roses + QStringLiteral("/rose.dst"),
                            QStringLiteral("/no/such/folder")});
    QVERIFY(action(QStringLiteral("&Remove folder"))->isEnabled());
    QCOMPARE(GlobalSettings().lastImportPath(), roses);
    QVERIFY(catalogue().contains(leaves));
    QVERIFY(catalogue().contains(roses));
    QVERIFY(!catalogue().contains(roses + QStringLiteral("/</")));
    QVERIFY(!m_window->findChild<ProgressDialog *>()->isVisible());

    const QString before = catalogue();
    m_window->filesDropped({roses + QStringLiteral("/rose.dst")});
    QCOMPARE(catalogue(), before);
}

void tst_mainwindow::removesFolders()
{
    const QString roses = createFolder(QStringLiteral("roses"), {QStringLiteral("rose.dst")});
    open();
    m_window->filesDropped({roses});
    {
        const MessageBoxes no(QMessageBox::No);
        action(QStringLiteral("&Remove folder"))->trigger();
        QCOMPARE(no.text(), QStringLiteral("Remove selected folder from list?"));
    }
    QVERIFY(catalogue().contains(roses));
    const MessageBoxes yes(QMessageBox::Yes);
    action(QStringLiteral("&Remove folder"))->trigger();
    QVERIFY(!catalogue().contains(roses));
    QVERIFY(!action(QStringLiteral("&Remove folder"))->isEnabled());
    QVERIFY(QFile::exists(roses + QStringLiteral("/rose.dst")));
}

void tst_mainwindow::disablesRemovalInSubfolders()
{
    const QString roses = createFolder(QStringLiteral("roses"), {});
    const QString wild =
        createFolder(QStringLiteral("roses/wild"), {QStringLiteral("wild rose.dst")});
    open();
    m_window->filesDropped({roses});
    auto *tree = m_window->findChild<DirectoriesBox *>()->findChild<QTreeView *>();
    const QModelIndex folder = tree->model()->index(0, 0);
    tree->setCurrentIndex(tree->model()->index(0, 0, folder));
    QVERIFY(!action(QStringLiteral("&Remove folder"))->isEnabled());
    tree->setCurrentIndex(folder);
    QVERIFY(action(QStringLiteral("&Remove folder"))->isEnabled());
}

void tst_mainwindow::keepsCatalogueAndLayout()
{
    const QString roses = createFolder(
        QStringLiteral("roses"), {QStringLiteral("rose.dst"), QStringLiteral("red rose.dst")});
    open();
    m_window->filesDropped({roses});
    m_window->resize(1100, 720);
    const QString stored = catalogue();
    QVERIFY(m_window->closeWindow());
    QTRY_VERIFY(!m_window);
    QCOMPARE(catalogue(), stored);

    open();
    QCOMPARE(m_window->size(), QSize(1100, 720));
    QVERIFY(action(QStringLiteral("&Remove folder"))->isEnabled());
    action(QStringLiteral("Select all"))->trigger();
    QCOMPARE(scene()->selectedFiles().size(), 2);
    for (const char *key : {"mainWindowSplitter", "leftSidebarSplitter", "RightSideBarSplitter"})
        QVERIFY(GSettings().contains(QStringLiteral("windowSettings/%1").arg(QLatin1String(key))));
}

void tst_mainwindow::emptySheetLeadsToAFolder()
{
    open();
    QVERIFY(hint()->isVisible());
    QCOMPARE(hintText(), QStringLiteral("Add a folder with embroidery designs to begin."));
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

void tst_mainwindow::emptySheetTellsOfEmptyFolders()
{
    const QString bare = createFolder(QStringLiteral("bare"), {});
    const QString roses = createFolder(QStringLiteral("roses"), {QStringLiteral("rose.dst")});
    open();
    m_window->filesDropped({bare});
    QVERIFY(
        hintText().startsWith(QStringLiteral("No embroidery designs were found in your folders.")));
    m_window->filesDropped({roses});
    QVERIFY(!hint()->isVisible());
    auto *tree = m_window->findChild<DirectoriesBox *>()->findChild<QTreeView *>();
    tree->setCurrentIndex(tree->model()->index(0, 0));
    QCOMPARE(hintText(), QStringLiteral("No embroidery designs were found in this folder."));
    hintButton()->click();
    QVERIFY(!hint()->isVisible());
    QVERIFY(!tree->selectionModel()->hasSelection());
}

// What it would tell while the designs are being read may be wrong a second later.
void tst_mainwindow::emptySheetIsSilentDuringAScan()
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
    m_window->filesDropped({createFolder(QStringLiteral("roses"), {QStringLiteral("a.dst")})});
    timer.stop();
    QVERIFY(looks > 0);
    QVERIFY(!told);
}

// The events that a scan lets in may bring the next folder, but never a second scan.
void tst_mainwindow::foldersDroppedDuringAScanFollowIt()
{
    const QString roses = createFolder(QStringLiteral("roses"), {QStringLiteral("rose.dst")});
    const QString leaves = createFolder(QStringLiteral("leaves"), {QStringLiteral("leaf.dst")});
    open();
    bool dropped = false;
    QTimer::singleShot(0, m_window, [&] {
        m_window->filesDropped({leaves});
        action(QStringLiteral("&Rescan"))->trigger();
        dropped = true;
        QVERIFY(!hint()->isVisible());
    });
    m_window->filesDropped({roses});
    QVERIFY(dropped);
    QVERIFY(catalogue().contains(roses));
    QVERIFY(!catalogue().contains(leaves));
    QTRY_VERIFY(catalogue().contains(leaves));
}

void tst_mainwindow::emptySheetLeadsOutOfTheFilter()
{
    const QString roses = createFolder(QStringLiteral("roses"), {QStringLiteral("rose.dst")});
    const QString leaves = createFolder(QStringLiteral("leaves"), {QStringLiteral("leaf.dst")});
    open();
    m_window->filesDropped({roses, leaves});
    auto *search = m_window->findChild<QLineEdit *>(QStringLiteral("searchTextLineEdit"));
    auto *type = m_window->findChild<QComboBox *>(QStringLiteral("fileTypeCombobox"));
    type->setCurrentText(QStringLiteral("hus"));
    QTest::keyClicks(search, QStringLiteral("tulip"));
    QVERIFY(hint()->isVisible());
    QCOMPARE(hintText(), QStringLiteral("No design matches the filter."));
    m_window->resize(1200, 800);
    QTRY_COMPARE(hint()->size(), hint()->parentWidget()->size());

    hintButton()->click();
    QVERIFY(!hint()->isVisible());
    QVERIFY(scene()->count() > 0);
    action(QStringLiteral("Select all"))->trigger();
    QCOMPARE(scene()->selectedFiles().size(), 2);
    QVERIFY(search->text().isEmpty());
    QCOMPARE(m_window->focusWidget(), scene()->views().first());
}

void tst_mainwindow::selectsWhatTheFilterShows()
{
    const QString roses = createFolder(
        QStringLiteral("roses"),
        {QStringLiteral("rose.dst"), QStringLiteral("leaf.dst"), QStringLiteral("primrose.dst")});
    open();
    m_window->filesDropped({roses});
    auto *search = m_window->findChild<QLineEdit *>(QStringLiteral("searchTextLineEdit"));
    QTest::keyClicks(search, QStringLiteral("rose"));
    action(QStringLiteral("Select all"))->trigger();
    QCOMPARE(scene()->selectedFiles().size(), 2);
}

void tst_mainwindow::opensADesignInItsWindow()
{
    const QString roses = createFolder(
        QStringLiteral("roses"), {QStringLiteral("rose.dst"), QStringLiteral("white rose.dst")});
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
    QVERIFY(design->windowTitle().contains(QStringLiteral("rose.dst")));
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
    QVERIFY(design->windowTitle().contains(QStringLiteral("white rose.dst")));
    // It does not outlive the window that it came from.
    QVERIFY(m_window->closeWindow());
    QTRY_VERIFY(!m_window);
    QVERIFY(!design);
}

void tst_mainwindow::tellsInTheStatusLine()
{
    const QString roses = createFolder(QStringLiteral("roses"),
                                       {QStringLiteral("rose.dst"), QStringLiteral("leaf.dst")});
    open();
    auto *line = m_window->findChild<StatusLine *>();
    const auto says = [line](const QString &text) {
        const auto labels = line->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&text](const QLabel *label) { return label->text() == text; });
    };
    bool toldOfTheScan = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this,
            [&] { toldOfTheScan = toldOfTheScan || says(QStringLiteral("Scanning...")); });
    timer.start(0);
    m_window->filesDropped({roses});
    QVERIFY(toldOfTheScan);
    QVERIFY(!says(QStringLiteral("Scanning...")));
    QTRY_VERIFY(says(QStringLiteral("2 designs · 16 stitches · 2 colors")));
    action(QStringLiteral("Select all"))->trigger();
    QTRY_VERIFY(says(QStringLiteral("2 designs · 2 selected · 16 stitches · 2 colors")));
    QVERIFY(says(QStringLiteral("100%")));
    action(QStringLiteral("&Zoom in"))->trigger();
    QVERIFY(says(QStringLiteral("150%")));
    QTest::keyClick(line->findChild<QSlider *>(), Qt::Key_Home);
    QVERIFY(says(QStringLiteral("%1%").arg(PreviewBrowser::ScaleFactors.first())));
}

void tst_mainwindow::transferAsksForASelection()
{
    open();
    const MessageBoxes answer;
    action(QStringLiteral("Transfer to machine"))->trigger();
    QCOMPARE(answer.text(), QStringLiteral("No embroidery files selected!"));
}

void tst_mainwindow::closesByKeyAndComesBack()
{
    open();
    QTest::keySequence(m_window, QKeySequence(QKeySequence::Close));
    QTRY_VERIFY(!m_window);
    HooplineApplication::setWindowFactory([this] { return m_window = new MainWindow; });
    HooplineApplication::instance()->onClickOnDock();
    QVERIFY(m_window && m_window->isVisible());
}

void tst_mainwindow::offersARescanWhenAFolderHasChanged()
{
    const QString roses = createFolder(QStringLiteral("roses"), {QStringLiteral("rose.dst")});
    open();
    auto *watcher = m_window->findChild<FolderWatcher *>();
    watcher->setDelay(0);
    QSignalSpy watched(watcher, &FolderWatcher::folderWatched);
    m_window->filesDropped({roses});
    if (watched.isEmpty() && !watched.wait())
        QSKIP("The system watches no folders.");
    const QString before = catalogue();
    createFolder(QStringLiteral("roses"), {QStringLiteral("bud.dst")});
    QTRY_COMPARE(notice(), QStringLiteral("The folder roses has changed."));
    QCOMPARE(catalogue(), before);

    m_window->findChild<NoticeBar *>()->findChildren<QPushButton *>().last()->click();
    QVERIFY(catalogue().contains(QStringLiteral("bud.dst")));
    QCOMPARE(notice(), QStringLiteral("1 new"));
}

void tst_mainwindow::tellsWhatAScanDid()
{
    const QString roses = createFolder(QStringLiteral("roses"),
                                       {QStringLiteral("rose.dst"), QStringLiteral("leaf.dst")});
    QFile broken(roses + QStringLiteral("/broken.hus"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("junk") == 4);
    broken.close();
    open();
    m_window->filesDropped({roses});
    QCOMPARE(notice(), QStringLiteral("3 new, 1 not readable"));
    QVERIFY(QFile::rename(roses + QStringLiteral("/rose.dst"), roses + QStringLiteral("/r.dst")));
    QVERIFY(broken.remove());
    action(QStringLiteral("&Rescan"))->trigger();
    QCOMPARE(notice(), QStringLiteral("1 moved, 1 gone"));
    action(QStringLiteral("&Rescan"))->trigger();
    QCOMPARE(notice(), QStringLiteral("Nothing has changed."));
}

void tst_mainwindow::stoppedImportLeadsToTheRest()
{
    constexpr int count = 150;
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QStringLiteral("%1.dst").arg(i));
    const QString roses = createFolder(QStringLiteral("roses"), names);
    open();
    auto *progress = m_window->findChild<ProgressDialog *>();
    QTimer timer;
    connect(&timer, &QTimer::timeout, progress, [progress] {
        if (progress->findChild<QLabel *>()->text().startsWith(QStringLiteral("Loading")))
            progress->reject();
    });
    timer.start(0);
    m_window->filesDropped({roses});
    timer.stop();
    QVERIFY(!progress->isVisible());
    const QString told = notice();
    QVERIFY2(QRegularExpression("^Stopped: 150 new, \\d+ not read yet$").match(told).hasMatch(),
             qPrintable(told));
    const auto buttons = m_window->findChild<NoticeBar *>()->findChildren<QPushButton *>();
    buttons.last()->click();
    QVERIFY(scene()->count() > 0);
    action(QStringLiteral("&Rescan"))->trigger();
    QCOMPARE(notice(), QStringLiteral("Nothing has changed."));
}

void tst_mainwindow::asksWhenTheCatalogueCannotBeUsed_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("opens");
    QTest::newRow("put right") << QStringLiteral("Try again") << true;
    QTest::newRow("given up") << QStringLiteral("Quit") << false;
}

void tst_mainwindow::asksWhenTheCatalogueCannotBeUsed()
{
    QFETCH(QString, button);
    QFETCH(bool, opens);
    const QString file = m_directory->filePath(QStringLiteral("data/hoopline-organizer.xml"));
    QVERIFY(QDir().mkpath(file + QStringLiteral("/x")));
    int asked = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        // The first answer puts nothing right.
        if (++asked == 2 && !QDir(file).removeRecursively())
            qFatal("cannot remove %s", qPrintable(file));
        const auto buttons = box->buttons();
        for (QAbstractButton *candidate : buttons) {
            if (candidate->text() == button)
                QTest::mouseClick(candidate, Qt::LeftButton);
        }
    });
    timer.start(10);
    if (opens)
        open();
    else
        QVERIFY_EXCEPTION_THROWN(MainWindow window, AbortException);
    QCOMPARE(asked, opens ? 2 : 1);
    QCOMPARE(HooplineApplication::instance()->mainWindowCount(), opens ? 1 : 0);
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
    tst_mainwindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mainwindow.moc"
