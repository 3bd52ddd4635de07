#include "TestWindow.h"

#include "app/application/HooplineApplication.h"
#include "app/frame/GAction.h"
#include "app/frame/GFileTypeRegistry.h"
#include "base/Error.h"
#include "base/GTranslationLoader.h"
#include "online/services/GUrlProvider.h"
#include "support/MessageBoxes.h"
#include "widgets/controls/GMessageBox.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QFileOpenEvent>
#include <QMenuBar>
#include <QPointer>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QSplitter>
#include <QTemporaryDir>
#include <QtTest>
#include <QWindow>

namespace {

/** Throws what it is told to when an event arrives. */
class Thrower : public QObject
{
public:
    std::function<void()> action;

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::User)
            action();
        return QObject::event(event);
    }
};

HooplineApplication *app()
{
    return HooplineApplication::instance();
}

} // namespace

using Throw = void (*)();
Q_DECLARE_METATYPE(Throw)

class tst_application : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void queuesFilesUntilStarted();
    void hasItsDocuments();
    void helpOpensTheManual_data();
    void helpOpensTheManual();
    void openPage(const QUrl &url) { m_opened = url; }
    void offersHelpWithoutDocumentationAndFeedback();
    void barrier_data();
    void barrier();
    void barrierShowsErrorsOfWorkers();
    void barrierElsewhere();
    void endsWithItsLastWindow();
    void cancelledQuitKeepsTheProgram();
    void listsWindows();
    void keepsWindowState();
    void closesOnceConfirmed();
    void opensAFileInItsWindow();
    void quitsWhenIdle();
    void quitsWhenTheWindowsAreGone();

private:
    QUrl m_opened;
};

void tst_application::init()
{
    HooplineApplication::setWindowFactory([] { return new TestWindow; });
}

void tst_application::cleanup()
{
    while (GMainWindow *window = theWindow())
        delete window;
    GSettings().flushSettings({QStringLiteral("autoUpdatesEnabled")});
}

// First, since it is the launch that makes the one window of the start.
void tst_application::queuesFilesUntilStarted()
{
    QPointer<TestWindow> window;
    HooplineApplication::setWindowFactory([&window] { return window = new TestWindow; });
    QFileOpenEvent open(QStringLiteral("/designs/rose.dst"));
    QSignalSpy request(app(), &GApplication::fileOpenRequest);
    QCoreApplication::sendEvent(app(), &open);
    app()->onClickOnDock();
    QVERIFY(app()->isStartingUp());
    QCOMPARE(app()->mainWindowCount(), 0);
    QTRY_VERIFY(window && window->isVisible());
    QVERIFY(!app()->isStartingUp());
    QCOMPARE(app()->mainWindowCount(), 1);
    // No file type is registered, so that the request comes to nothing.
    QCOMPARE(request.count(), 0);
}

void tst_application::hasItsDocuments()
{
    const QUrl url = app()->urlProvider()->acknowledgementsUrl();
    QVERIFY2(QFile::exists(url.toLocalFile()), qPrintable(url.toString()));
}

void tst_application::helpOpensTheManual_data()
{
    QTest::addColumn<QStringList>("installed");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("opened");
    const QStringList both{QStringLiteral("manual.html"), QStringLiteral("manual.de.html")};
    QTest::newRow("English") << both << "en" << both.first();
    QTest::newRow("German") << both << "de" << both.last();
    QTest::newRow("not translated") << both << "zh-CN" << both.first();
    QTest::newRow("not installed") << QStringList() << "de" << QString();
}

void tst_application::helpOpensTheManual()
{
    QFETCH(QStringList, installed);
    QFETCH(QString, language);
    QFETCH(QString, opened);
    const QString usual = GApplicationAddons::resourcesDirectory().path();
    const auto asBefore = qScopeGuard([usual] {
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        GApplicationAddons::setResourcesDirectory(usual);
        GSettings().setUiLanguage(QString());
        GTranslationLoader::instance()->setTranslations(app());
    });
    QTemporaryDir directory;
    const QDir documents(directory.filePath(QStringLiteral("documents")));
    QVERIFY(documents.mkpath(QStringLiteral(".")));
    for (const QString &name : qAsConst(installed))
        QVERIFY(QFile(documents.filePath(name)).open(QIODevice::WriteOnly));
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openPage");
    GApplicationAddons::setResourcesDirectory(directory.path());
    GSettings().setUiLanguage(language);
    GTranslationLoader::instance()->setTranslations(app());

    m_opened.clear();
    const MessageBoxes boxes;
    app()->tutorialsAction()->trigger();
    QCOMPARE(QFileInfo(m_opened.toLocalFile()).fileName(), opened);
    QCOMPARE(boxes.count(), opened.isEmpty() ? 1 : 0);
    if (opened.isEmpty())
        QVERIFY(
            boxes.informativeText().contains(documents.filePath(QStringLiteral("manual.html"))));
}

void tst_application::offersHelpWithoutDocumentationAndFeedback()
{
    QStringList texts;
    const auto actions = app()->applicationLevelHelpActions();
    for (const GAction *action : actions)
        texts.append(action->text());
    QCOMPARE(texts,
             (QStringList{QStringLiteral("Tutorials..."), QStringLiteral("Acknowledgements..."),
                          QStringLiteral("Check for updates ...")}));
    QVERIFY(app()->applicationLevelFileActions().isEmpty());
}

void tst_application::barrier_data()
{
    QTest::addColumn<Throw>("action");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, Throw action) -> QTestData & {
        return QTest::newRow(name) << action;
    };
    row("error", [] { throw ErrorDoesNotExist(QStringLiteral("The disk is full.")); })
        << "Error"
        << "The disk is full.";
    row("exception", [] { throw std::runtime_error("a < b"); })
        << "Critical Exception"
        << "Caught unhandled exception:<br/>a &lt; b<br/>Please report to <a href=\"mailto:";
    row("unknown", [] { throw 42; }) << QString() << QString();
}

void tst_application::barrier()
{
    QFETCH(Throw, action);
    QFETCH(QString, text);
    Thrower thrower;
    thrower.action = action;
    const MessageBoxes answer;
    QEvent event(QEvent::User);
    QVERIFY(!QCoreApplication::sendEvent(&thrower, &event));
    QCOMPARE(answer.count(), text.isEmpty() ? 0 : 1);
    QTEST(answer.title(), "title");
    QVERIFY2(answer.text().startsWith(text), qPrintable(answer.text()));
}

// Where Qt enters the program without notify(), as with the signals of the application.
void tst_application::barrierElsewhere()
{
    for (const Throw action : {Throw([] { throw Error(QStringLiteral("The disk is full.")); }),
                               Throw([] { throw std::runtime_error("a < b"); })}) {
        const MessageBoxes answer;
        QVERIFY(!app()->guarded(action));
        QCOMPARE(answer.count(), 1);
    }
    QVERIFY(!app()->guarded([] { throw 42; }));
    QVERIFY(app()->guarded([] {}));
}

void tst_application::barrierShowsErrorsOfWorkers()
{
    QThread worker;
    Thrower thrower;
    thrower.action = [] { throw Error(QStringLiteral("The preview is gone.")); };
    thrower.moveToThread(&worker);
    const MessageBoxes answer;
    worker.start();
    QCoreApplication::postEvent(&thrower, new QEvent(QEvent::User));
    QTRY_COMPARE(answer.count(), 1);
    QCOMPARE(answer.text(), QStringLiteral("The preview is gone."));
    worker.quit();
    QVERIFY(worker.wait());
}

// Without a dock or an application menu nothing would lead back to a program without a window.
void tst_application::endsWithItsLastWindow()
{
    app()->newDocument();
    app()->newDocument();
    QCOMPARE(app()->mainWindowCount(), 1);
    QTimer::singleShot(0, app(), [] { QVERIFY(theWindow()->closeWindow()); });
    QTimer::singleShot(10000, app(), [] { QCoreApplication::exit(7); });
    QCOMPARE(app()->exec(), 0);
    QCOMPARE(app()->mainWindowCount(), 0);

    app()->onClickOnDock();
    QCOMPARE(app()->mainWindowCount(), 1);
    theWindow()->showMinimized();
    app()->onClickOnDock();
    QCOMPARE(app()->mainWindowCount(), 1);
    QVERIFY(!theWindow()->isMinimized());
}

void tst_application::cancelledQuitKeepsTheProgram()
{
    QPointer<TestWindow> first = new TestWindow;
    QPointer<TestWindow> second = new TestWindow;
    second->modified = true;
    first->show();
    second->show();
    const MessageBoxes answer(QMessageBox::Cancel);
    QVERIFY(!app()->closeAllWindowsAndQuit());
    QCOMPARE(answer.text(), QStringLiteral("The document has been modified."));
    QTRY_VERIFY(!first);
    QVERIFY(second && second->isVisible());
}

void tst_application::listsWindows()
{
    TestWindow untitled;
    auto named = std::make_unique<TestWindow>();
    named->setCurrentFileName(QStringLiteral("/designs/rose.dst"));
    emit app()->windowMenu()->aboutToShow();
    const auto actions = app()->windowMenu()->actions();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions.at(0)->text(), QStringLiteral("untitled document"));
    QCOMPARE(actions.at(1)->text(), QStringLiteral("/designs/rose.dst"));
    named.reset();
    emit app()->windowMenu()->aboutToShow();
    QCOMPARE(app()->windowMenu()->actions().size(), 1);
}

void tst_application::keepsWindowState()
{
    const auto create = [] {
        auto window = std::make_unique<TestWindow>();
        auto *splitter = new QSplitter(window.get());
        splitter->setObjectName(QStringLiteral("panes"));
        splitter->addWidget(new QWidget);
        splitter->addWidget(new QWidget);
        window->setCentralWidget(splitter);
        return window;
    };
    const QString key = QStringLiteral("windowSettings/");
    {
        auto window = create();
        window->saveWindowState(QString());
        QVERIFY(!GSettings().contains(key + QStringLiteral("geometry"))); // as it is hidden
        window->setGeometry(60, 70, 420, 310);
        window->show();
        window->findChild<QSplitter *>()->setSizes({100, 300});
        window->saveWindowState(QString());
    }
    QVERIFY(GSettings().contains(key + QStringLiteral("geometry")));
    QVERIFY(GSettings().contains(key + QStringLiteral("windowState")));
    QVERIFY(GSettings().contains(key + QStringLiteral("panes")));
    auto window = create();
    window->winId();
    QSignalSpy seen(window->windowHandle(), &QWindow::visibleChanged);
    window->restoreWindowState(QString());
    QVERIFY(window->isHidden() && seen.isEmpty());
    QCOMPARE(window->size(), QSize(420, 310));
    QCOMPARE(window->property("own").toString(), QStringLiteral("stored"));
    const auto sizes = window->findChild<QSplitter *>()->sizes();
    QVERIFY(sizes.at(1) > 2 * sizes.at(0));

    window->setCurrentFileName(QStringLiteral("/a b/rose-1.dst"));
    window->show();
    window->saveWindowState(QString());
    QVERIFY(GSettings().contains(key + QStringLiteral("abrose1dst/geometry")));
}

void tst_application::closesOnceConfirmed()
{
    QPointer<TestWindow> window = new TestWindow;
    window->modified = true;
    window->menuBar()->addMenu(QStringLiteral("File"));
    window->show();
    const MessageBoxes answer(QMessageBox::Discard);
    QVERIFY(window->closeWindow());
    QTRY_VERIFY(!window);
    QCOMPARE(answer.count(), 1);
    QVERIFY(GSettings().contains(QStringLiteral("windowSettings/geometry")));
}

// Late, since a file type stays.
void tst_application::opensAFileInItsWindow()
{
    const QString rose = QStringLiteral("/designs/rose.dst");
    theFileTypeRegistry().registerType(QStringLiteral("design"), QStringLiteral(".dst"), QString(),
                                       QString(), true, false, false, TestWindow::staticMetaObject);
    auto *used = new TestWindow;
    used->modified = true;
    auto *unused = new TestWindow;
    unused->canLoad = true;
    {
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        app()->openFile(rose);
        QVERIFY(unused->loadedFiles.isEmpty());
    }
    app()->openFile(rose);
    QVERIFY(used->loadedFiles.isEmpty());
    QCOMPARE(unused->loadedFiles, QStringList(rose));
    QCOMPARE(unused->fileName(), rose);
    QVERIFY(unused->isVisible());

    app()->openFile(rose);
    QCOMPARE(unused->loadedFiles.size(), 1);

    // All windows are used, and the new one can't load the file.
    QSignalSpy request(app(), &GApplication::fileOpenRequest);
    app()->openFile(QStringLiteral("/designs/LEAF.DST"));
    QCOMPARE(request.count(), 1);
    QTRY_COMPARE(app()->mainWindowCount(), 2);
}

// Last, since a program quits once.

// The system may ask at any moment: here in the middle of work, with a dialog and a menu open.
void tst_application::quitsWhenIdle()
{
    auto *window = new TestWindow;
    window->show();
    window->busy = true;
    bool answered = false;
    QTimer::singleShot(0, app(), [&] {
        GMessageBox question(GMessageBox::Question, window, QStringLiteral("Remove?"));
        QTimer::singleShot(0, window, [window] {
            QMenu menu;
            menu.addAction(QStringLiteral("Item"));
            QTimer::singleShot(0, app(), &GApplication::quitWhenIdle);
            menu.exec(window->mapToGlobal(QPoint()));
        });
        answered = question.exec() == QMessageBox::No;
        // The work sees only now that it was cancelled.
        QTimer::singleShot(0, window, [window] {
            QCOMPARE(app()->mainWindowCount(), 1);
            window->busy = !window->cancelled;
        });
    });
    QTimer::singleShot(10000, app(), [] { QCoreApplication::exit(7); });
    QCOMPARE(app()->exec(), 0);
    QVERIFY(answered);
    QCOMPARE(app()->mainWindowCount(), 0);
}

void tst_application::quitsWhenTheWindowsAreGone()
{
    (new TestWindow)->show();
    (new TestWindow)->show();
    QTimer::singleShot(0, app(), &GApplication::closeAllWindowsAndQuit);
    QTimer::singleShot(10000, app(), [] { QCoreApplication::exit(7); });
    QCOMPARE(app()->exec(), 0);
    QCOMPARE(app()->mainWindowCount(), 0);
}

int main(int argc, char **argv)
{
    HooplineApplication application(argc, argv);
    GSettings().setAutoUpdatesEnabled(false);
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
    tst_application test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_application.moc"
