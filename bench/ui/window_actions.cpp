#include "CatalogueActions.h"

#include "app/application/HooplineApplication.h"
#include "base/GlobalSettings.h"
#include "catalogue/LargeCatalogue.h"
#include "catalogue/records/File.h"
#include "preview/grid/GridEmbroideryItem.h"
#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"
#include "properties/changes/BulkOperation.h"
#include "properties/core/GProject.h"
#include "properties/undo/GUndoStack.h"
#include "support/Figure.h"
#include "ui/MainWindow.h"
#include "widgets/controls/GTreeView.h"
#include "WindowProbe.h"

#include <QDir>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QtTest>

/*
 * What a user waits for in the real window, over the catalogue in a data folder: each
 * action up to and with the painted frame, in milliseconds of the processor on the
 * window's own thread, since that is what stands between a key and its effect.
 */
using namespace WindowProbe;

namespace {

constexpr int ScrollSteps = 200;
constexpr int DifferentTags = 5000;

class WindowActions
{
public:
    explicit WindowActions(QWidget *window)
        : m_window(window), m_view(window->findChild<GridGraphicsView *>()),
          m_search(window->findChild<QLineEdit *>(QStringLiteral("searchTextLineEdit")))
    {
        m_window->resize(1280, 800);
        m_window->show();
        if (!QTest::qWaitForWindowExposed(m_window))
            qFatal("the window does not show");
        Figure::print("start, all threads", Figure::secondsOf(CLOCK_PROCESS_CPUTIME_ID) * 1e3);
        Figure::print("memory at the start", double(memoryInKilobytes("VmRSS")) * 1024);
        m_count = m_view->gridScene()->count();
        settle();
    }

    void run()
    {
        measureSearch();
        measureFolders();
        measureScrolling();
        measureSelection("select all", "select none");
        CatalogueActions(m_window, files()).run();
        giveDifferentTags();
        measureSelection("select all, 5000 tags", "select none, 5000 tags");
        measureSave();
    }

private:
    void measureSearch()
    {
        std::vector<double> first;
        std::vector<double> later;
        std::vector<double> cleared;
        for (int round = 0; round < Rounds; ++round) {
            m_search->setFocus();
            first.push_back(take([&] { QTest::keyClick(m_search, Qt::Key_7); }));
            later.push_back(take([&] { QTest::keyClick(m_search, Qt::Key_3); }));
            later.push_back(take([&] { QTest::keyClick(m_search, Qt::Key_1); }));
            cleared.push_back(take([&] { QTest::keyClick(m_search, Qt::Key_Escape); }));
            settle();
        }
        Figure::print("first key", Figure::median(first));
        Figure::print("later key", Figure::median(later));
        Figure::print("search cleared", Figure::median(cleared));
    }

    void measureFolders()
    {
        auto *tree = m_window->findChild<GTreeView *>();
        const QModelIndex all = tree->model()->index(0, 0);
        tree->setCurrentIndex(all);
        settle();
        std::vector<double> one;
        std::vector<double> back;
        for (int round = 0; round < Rounds; ++round) {
            const QModelIndex folder = tree->model()->index(round, 0, all);
            one.push_back(take([&] { tree->setCurrentIndex(folder); }));
            settle();
            back.push_back(take([&] { tree->setCurrentIndex(all); }));
            settle();
        }
        Figure::print("folder click", Figure::median(one));
        Figure::print("folder of all", Figure::median(back));
    }

    void measureScrolling()
    {
        QScrollBar *bar = m_view->verticalScrollBar();
        bar->setValue(0);
        settle();
        std::vector<double> steps;
        for (int step = 0; step < ScrollSteps; ++step) {
            steps.push_back(take([&] { bar->setValue(bar->value() + 60); }));
            if (bar->value() == bar->maximum())
                bar->setValue(0);
        }
        Figure::print("scroll", Figure::median(steps));
        settle();
    }

    void measureSelection(const char *all, const char *none)
    {
        std::vector<double> selected;
        std::vector<double> cleared;
        m_view->setFocus();
        for (int round = 0; round < Rounds; ++round) {
            selected.push_back(
                take([&] { QTest::keyClick(m_view, Qt::Key_A, Qt::ControlModifier); }));
            settle();
            cleared.push_back(take([&] { QTest::keyClick(m_view, Qt::Key_Escape); }));
            settle();
        }
        Figure::print(all, Figure::median(selected));
        Figure::print(none, Figure::median(cleared));
    }

    void giveDifferentTags()
    {
        const BulkOperation bulk;
        for (int i = 0; i < std::min(m_count, DifferentTags); ++i)
            fileAt(i)->tagsProp()->setValueWithoutUndoAndAnnounceChange(
                {QStringLiteral("tag %1").arg(i)});
    }

    void measureSave()
    {
        const QString catalogue =
            GlobalSettings().applicationDataPath() + QStringLiteral("/hoopline-organizer.xml");
        const GUndoStack *undo = fileAt(0)->notesProp()->project()->undoStack();
        std::vector<double> here;
        std::vector<double> everywhere;
        for (int round = 0; round < Rounds; ++round) {
            fileAt(m_count / 2)->setNotes(QStringLiteral("Sewn %1 times").arg(round));
            settle();
            const QDateTime before = QFileInfo(catalogue).lastModified();
            everywhere.push_back(Figure::milliseconds(
                [&] {
                    here.push_back(Figure::milliseconds([&] {
                        emit qApp->applicationStateChanged(Qt::ApplicationInactive);
                        while (!undo->isClean() || QFileInfo(catalogue).lastModified() == before)
                            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
                    }));
                },
                CLOCK_PROCESS_CPUTIME_ID));
            emit qApp->applicationStateChanged(Qt::ApplicationActive);
            settle();
        }
        Figure::print("save, window", Figure::median(here));
        Figure::print("save, all threads", Figure::median(everywhere));
    }

    QList<QSharedPointer<IFile>> files() const
    {
        QList<QSharedPointer<IFile>> files;
        for (int i = 0; i < m_count; ++i)
            files.append(fileAt(i));
        return files;
    }

    QSharedPointer<IFile> fileAt(int index) const
    {
        return m_view->gridScene()->cardAt(index)->file();
    }

    QWidget *m_window;
    GridGraphicsView *m_view;
    QLineEdit *m_search;
    int m_count = 0;
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Q_INIT_RESOURCE(tnw_resources);
    Q_INIT_RESOURCE(hoopline_resources);
    if (argc != 2) {
        std::fputs("usage: window-actions DATA-FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    GSettings::setIniFile(folder.absoluteFilePath(QStringLiteral("settings.ini")));
    GSettings().setAutoUpdatesEnabled(false);
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
    GlobalSettings().setApplicationDataPath(folder.absolutePath());
    HooplineApplication application(argc, argv);
    QPointer<MainWindow> window;
    HooplineApplication::setWindowFactory([&window] { return window = new MainWindow; });
    QCoreApplication::processEvents();
    WindowActions(window).run();
    delete window;
    return 0;
}
