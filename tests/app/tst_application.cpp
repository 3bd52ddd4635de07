#include "TestWindow.h"

#include "app/application/HooplineApplication.h"
#include "app/frame/GAction.h"
#include "app/frame/GFileTypeRegistry.h"
#include "base/Error.h"
#include "base/GTranslationLoader.h"
#include "online/services/GUrlProvider.h"
#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "widgets/controls/GMessageBox.h"

#include <QtTest>
#include <QtWidgets>

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

// Last, since a program quits once.

class tst_application : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HooplineApplication::setWindowFactory([] { return new TestWindow; });
    }

    void cleanup()
    {
        while (GMainWindow *window = theWindow())
            delete window;
        GSettings().flushSettings({"autoUpdatesEnabled"});
    }

    // First, since it is the launch that makes the one window of the start.
    void queuesFilesUntilStarted()
    {
        QPointer<TestWindow> window;
        HooplineApplication::setWindowFactory([&window] { return window = new TestWindow; });
        QFileOpenEvent open("/designs/rose.dst");
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

    void hasItsDocuments()
    {
        const QUrl url = app()->urlProvider()->acknowledgementsUrl();
        QVERIFY2(QFile::exists(url.toLocalFile()), qPrintable(url.toString()));
    }

    void helpOpensTheManual_data()
    {
        const Rows<QStringList, QString, QString> row("installed", "language", "opened");
        const QStringList both{"manual.html", "manual.de.html"};
        row("English", both, "en", both.first());
        row("German", both, "de", both.last());
        row("not translated", both, "zh-CN", both.first());
        row("not installed", {}, "de", {});
    }

    void helpOpensTheManual()
    {
        QFETCH(QStringList, installed);
        QFETCH(QString, language);
        QFETCH(QString, opened);
        const QString usual = GApplicationAddons::resourcesDirectory().path();
        const auto asBefore = qScopeGuard([usual] {
            QDesktopServices::unsetUrlHandler("file");
            GApplicationAddons::setResourcesDirectory(usual);
            GSettings().setUiLanguage(QString());
            GTranslationLoader::instance()->setTranslations(app());
        });
        QTemporaryDir directory;
        const QDir documents(directory.filePath("documents"));
        QVERIFY(documents.mkpath("."));
        for (const QString &name : qAsConst(installed))
            QVERIFY(QFile(documents.filePath(name)).open(QIODevice::WriteOnly));
        QDesktopServices::setUrlHandler("file", this, "openPage");
        GApplicationAddons::setResourcesDirectory(directory.path());
        GSettings().setUiLanguage(language);
        GTranslationLoader::instance()->setTranslations(app());

        m_opened.clear();
        const MessageBoxes boxes;
        app()->tutorialsAction()->trigger();
        QCOMPARE(QFileInfo(m_opened.toLocalFile()).fileName(), opened);
        QCOMPARE(boxes.count(), opened.isEmpty() ? 1 : 0);
        if (opened.isEmpty())
            QVERIFY(boxes.informativeText().contains(documents.filePath("manual.html")));
    }

    void openPage(const QUrl &url) { m_opened = url; }

    void offersHelpWithoutDocumentationAndFeedback()
    {
        QStringList texts;
        const auto actions = app()->applicationLevelHelpActions();
        for (const GAction *action : actions)
            texts.append(action->text());
        QCOMPARE(texts,
                 (QStringList{"Tutorials...", "Acknowledgements...", "Check for updates ..."}));
        QVERIFY(app()->applicationLevelFileActions().isEmpty());
    }

    void barrier_data()
    {
        const Rows<Throw, QString, QString> row("action", "title", "text");
        row(
            "error", [] { throw ErrorDoesNotExist("The disk is full."); }, "Error",
            "The disk is full.");
        row(
            "exception", [] { throw std::runtime_error("a < b"); }, "Critical Exception",
            "Caught unhandled exception:<br/>a &lt; b<br/>Please report to <a href=\"mailto:");
        row("unknown", [] { throw 42; }, {}, {});
    }

    void barrier()
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

    void barrierShowsErrorsOfWorkers()
    {
        QThread worker;
        Thrower thrower;
        thrower.action = [] { throw Error("The preview is gone."); };
        thrower.moveToThread(&worker);
        const MessageBoxes answer;
        worker.start();
        QCoreApplication::postEvent(&thrower, new QEvent(QEvent::User));
        QTRY_COMPARE(answer.count(), 1);
        QCOMPARE(answer.text(), "The preview is gone.");
        worker.quit();
        QVERIFY(worker.wait());
    }

    // Where Qt enters the program without notify(), as with the signals of the application.
    void barrierElsewhere()
    {
        for (const Throw action : {Throw([] { throw Error("The disk is full."); }),
                                   Throw([] { throw std::runtime_error("a < b"); })}) {
            const MessageBoxes answer;
            QVERIFY(!app()->guarded(action));
            QCOMPARE(answer.count(), 1);
        }
        QVERIFY(!app()->guarded([] { throw 42; }));
        QVERIFY(app()->guarded([] {}));
    }

    // Without a dock or an application menu nothing would lead back to a program without a window.
    void endsWithItsLastWindow()
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

    void cancelledQuitKeepsTheProgram()
    {
        QPointer<TestWindow> first = new TestWindow;
        QPointer<TestWindow> second = new TestWindow;
        second->modified = true;
        first->show();
        second->show();
        const MessageBoxes answer(QMessageBox::Cancel);
        QVERIFY(!app()->closeAllWindowsAndQuit());
        QCOMPARE(answer.text(), "The document has been modified.");
        QTRY_VERIFY(!first);
        QVERIFY(second && second->isVisible());
    }

    void listsWindows()
    {
        TestWindow untitled;
        auto named = std::make_unique<TestWindow>();
        named->setCurrentFileName("/designs/rose.dst");
        emit app()->windowMenu()->aboutToShow();
        const auto actions = app()->windowMenu()->actions();
        QCOMPARE(actions.size(), 2);
        QCOMPARE(actions.at(0)->text(), "untitled document");
        QCOMPARE(actions.at(1)->text(), "/designs/rose.dst");
        named.reset();
        emit app()->windowMenu()->aboutToShow();
        QCOMPARE(app()->windowMenu()->actions().size(), 1);
    }

    void keepsWindowState()
    {
        const auto create = [] {
            auto window = std::make_unique<TestWindow>();
            auto *splitter = new QSplitter(window.get());
            splitter->setObjectName("panes");
            splitter->addWidget(new QWidget);
            splitter->addWidget(new QWidget);
            window->setCentralWidget(splitter);
            return window;
        };
        const QString key = "windowSettings/";
        {
            auto window = create();
            window->saveWindowState(QString());
            QVERIFY(!GSettings().contains(key + "geometry")); // as it is hidden
            window->setGeometry(60, 70, 420, 310);
            window->show();
            window->findChild<QSplitter *>()->setSizes({100, 300});
            window->saveWindowState(QString());
        }
        QVERIFY(GSettings().contains(key + "geometry"));
        QVERIFY(GSettings().contains(key + "windowState"));
        QVERIFY(GSettings().contains(key + "panes"));
        auto window = create();
        window->winId();
        QSignalSpy seen(window->windowHandle(), &QWindow::visibleChanged);
        window->restoreWindowState(QString());
        QVERIFY(window->isHidden() && seen.isEmpty());
        QCOMPARE(window->size(), QSize(420, 310));
        QCOMPARE(window->property("own").toString(), "stored");
        const auto sizes = window->findChild<QSplitter *>()->sizes();
        QVERIFY(sizes.at(1) > 2 * sizes.at(0));

        window->setCurrentFileName("/a b/rose-1.dst");
        window->show();
        window->saveWindowState(QString());
        QVERIFY(GSettings().contains(key + "abrose1dst/geometry"));
    }

    void closesOnceConfirmed()
    {
        QPointer<TestWindow> window = new TestWindow;
        window->modified = true;
        window->menuBar()->addMenu("File");
        window->show();
        const MessageBoxes answer(QMessageBox::Discard);
        QVERIFY(window->closeWindow());
        QTRY_VERIFY(!window);
        QCOMPARE(answer.count(), 1);
        QVERIFY(GSettings().contains("windowSettings/geometry"));
    }

    // Late, since a file type stays.
    void opensAFileInItsWindow()
    {
        const QString rose = "/designs/rose.dst";
        theFileTypeRegistry().registerType("design", ".dst", QString(), QString(), true, false,
                                           false, TestWindow::staticMetaObject);
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
        app()->openFile("/designs/LEAF.DST");
        QCOMPARE(request.count(), 1);
        QTRY_COMPARE(app()->mainWindowCount(), 2);
    }

    // The system may ask at any moment: here in the middle of work, with a dialog and a menu open.
    void quitsWhenIdle()
    {
        auto *window = new TestWindow;
        window->show();
        window->busy = true;
        bool answered = false;
        QTimer::singleShot(0, app(), [&] {
            GMessageBox question(GMessageBox::Question, window, "Remove?");
            QTimer::singleShot(0, window, [window] {
                QMenu menu;
                menu.addAction("Item");
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

    void quitsWhenTheWindowsAreGone()
    {
        (new TestWindow)->show();
        (new TestWindow)->show();
        QTimer::singleShot(0, app(), &GApplication::closeAllWindowsAndQuit);
        QTimer::singleShot(10000, app(), [] { QCoreApplication::exit(7); });
        QCOMPARE(app()->exec(), 0);
        QCOMPARE(app()->mainWindowCount(), 0);
    }

private:
    QUrl m_opened;
};

int main(int argc, char **argv)
{
    HooplineApplication application(argc, argv);
    GSettings().setAutoUpdatesEnabled(false);
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
    tst_application test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_application.moc"
