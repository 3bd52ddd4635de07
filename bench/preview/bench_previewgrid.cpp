#include "base/GlobalSettings.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "catalogue/records/File.h"
#include "catalogue/records/Project.h"
#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"
#include "preview/grid/PreviewBrowser.h"
#include <ctime>
#include <memory>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

using Files = QList<QSharedPointer<IFile>>;

/**
 * The grid with a hundred thousand cards, every tenth a favourite. Each step is
 * measured up to and with the painted frame that the user sees.
 */
class bench_PreviewGrid : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void setFiles();
    void firstFrame();
    void setSameFiles();
    void scrollStep();
    void jumpToTheMiddle();
    void moveThePointer();
    void zoomStep();
    void resizeByAColumn();
    void selectAll();
    void clearSelection();
    void filterToHalf();
    void filterBackToAll();
    void filterToTheFavorites();

private:
    void paint() { QCoreApplication::processEvents(); }
    // Told in the log: a step changes the sheet, and QBENCHMARK would take it twice.
    template <typename Step>
    void measure(int times, const Step &step)
    {
        QElapsedTimer timer;
        timer.start();
        const std::clock_t begin = std::clock();
        for (int i = 0; i < times; ++i) {
            step();
        }
        const double processor = 1e3 * (std::clock() - begin) / CLOCKS_PER_SEC;
        qInfo("%.2f ms, of the processor %.2f ms", timer.nsecsElapsed() / 1e6 / times,
              processor / times);
    }
    // The filter's own work is not the grid's.
    void show(const Files &files) { m_scene->setFiles(files); }

    QTemporaryDir m_directory;
    QSharedPointer<Project> m_project;
    std::unique_ptr<FilterSelectionModel> m_models;
    std::unique_ptr<PreviewBrowser> m_browser;
    GridGraphicsView *m_view = nullptr;
    GridPreviewScene *m_scene = nullptr;
    Files m_files;
};

void bench_PreviewGrid::initTestCase()
{
    Q_INIT_RESOURCE(hoopline_resources);
    GSettings::setIniFile(m_directory.filePath(QStringLiteral("settings.ini")));
    GlobalSettings().setApplicationDataPath(m_directory.path());

    m_project = QSharedPointer<Project>::create();
    for (int i = 0; i < 100000; ++i) {
        const auto file = QSharedPointer<File>::create(m_project.data());
        file->setAbsoluteFilePath(
            QStringLiteral("/designs/%1/flower %2.dst").arg(i / 100).arg(i, 6));
        file->setDesignSize(QSizeF(80 + i % 40, 60 + i % 50));
        file->setContentHash(QByteArray::number(i));
        if (i % 10 == 0) {
            file->setFavorite(true);
        }
        m_files.append(file);
    }
    m_models = std::make_unique<FilterSelectionModel>(m_project);
    m_browser = std::make_unique<PreviewBrowser>(nullptr, m_project, m_models.get());
    m_view = m_browser->findChild<GridGraphicsView *>();
    m_scene = m_browser->findChild<GridPreviewScene *>();
    m_browser->resize(1100, 800);
    m_browser->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_browser.get()));
}

void bench_PreviewGrid::cleanupTestCase()
{
    m_browser.reset();
    m_models.reset();
}

void bench_PreviewGrid::setFiles()
{
    measure(1, [&]() { show(m_files); });
}

void bench_PreviewGrid::firstFrame()
{
    measure(1, [&]() { paint(); });
}

void bench_PreviewGrid::setSameFiles()
{
    measure(1, [&]() { show(m_files); });
}

void bench_PreviewGrid::scrollStep()
{
    paint();
    QScrollBar *bar = m_view->verticalScrollBar();
    measure(50, [&]() {
        bar->setValue(bar->value() + 60);
        paint();
    });
}

void bench_PreviewGrid::jumpToTheMiddle()
{
    QScrollBar *bar = m_view->verticalScrollBar();
    measure(1, [&]() {
        bar->setValue(bar->maximum() / 2);
        paint();
    });
}

void bench_PreviewGrid::moveThePointer()
{
    int x = 0;
    measure(50, [&]() {
        x = (x + 37) % 1000;
        QMouseEvent move(QEvent::MouseMove, QPoint(x, 300), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(m_view->viewport(), &move);
        QCoreApplication::processEvents();
    });
}

void bench_PreviewGrid::zoomStep()
{
    measure(1, [&]() {
        m_browser->zoomOut();
        paint();
    });
}

void bench_PreviewGrid::resizeByAColumn()
{
    measure(1, [&]() {
        m_browser->resize(1300, 800);
        paint();
    });
}

void bench_PreviewGrid::selectAll()
{
    measure(1, [&]() {
        QTest::keyClick(m_view, Qt::Key_A, Qt::ControlModifier);
        paint();
    });
    QCOMPARE(m_models->selection()->selectedFiles().size(), m_files.size());
}

void bench_PreviewGrid::clearSelection()
{
    measure(1, [&]() {
        QTest::keyClick(m_view, Qt::Key_Escape);
        paint();
    });
}

void bench_PreviewGrid::filterToHalf()
{
    Files half;
    for (int i = 0; i < m_files.size(); i += 2) {
        half.append(m_files.at(i));
    }
    measure(1, [&]() {
        show(half);
        paint();
    });
}

void bench_PreviewGrid::filterBackToAll()
{
    measure(1, [&]() {
        show(m_files);
        paint();
    });
}

void bench_PreviewGrid::filterToTheFavorites()
{
    Files favorites;
    for (int i = 0; i < m_files.size(); i += 10) {
        favorites.append(m_files.at(i));
    }
    measure(1, [&]() {
        show(favorites);
        paint();
    });
}

QTEST_MAIN(bench_PreviewGrid)
#include "bench_previewgrid.moc"
