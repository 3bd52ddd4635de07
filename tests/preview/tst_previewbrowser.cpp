#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "preview/cache/PreviewCache.h"
#include "preview/grid/GridEmbroideryItem.h"
#include "preview/grid/GridFavoriteItem.h"
#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"
#include "preview/grid/PreviewBrowser.h"
#include "preview/grid/PreviewSheet.h"
#include "PreviewFixture.h"
#include <memory>
#include <QGestureEvent>
#include <QLabel>
#include <QPinchGesture>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QtTest>

using Files = QList<QSharedPointer<IFile>>;

class tst_PreviewBrowser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void startZoom_data();
    void startZoom();
    void zoomStepsEndAtTheEnds();
    void zoomKeepsTheSelectionInView();
    void gapsStayOnScreen();
    void columnsFollowTheWindow();
    void windowNarrowerThanACardShowsAll();
    void keysSelect();
    void rubberBandTellsGridOrder();
    void clickSelectsAndModelSelects();
    void filterShrinksTheSelection();
    void starTogglesTheFlag();
    void previewsArriveOnTheCards();
    void spaceOpensTheOnlySelected_data();
    void spaceOpensTheOnlySelected();
    void anythingClosesTheSheet_data();
    void anythingClosesTheSheet();
    void sheetEnlarges();
    void middleButtonPans();
    void pinchZoomsWithinItsLimits();
    void wheelOnlyScrolls();

private:
    void addFiles(int count);
    void show(const QSize &size = QSize(800, 600));
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    GridEmbroideryItem *card(int index) const;
    QRect cardRect(int index) const;
    QWidget *viewport() const { return m_view->viewport(); }
    Files selected() const { return m_models->selection()->selectedFiles(); }

    std::unique_ptr<PreviewFixture> m_fixture;
    QSharedPointer<Project> m_project;
    std::unique_ptr<FilterSelectionModel> m_models;
    std::unique_ptr<PreviewBrowser> m_browser;
    GridGraphicsView *m_view = nullptr;
    Files m_files;
};

void tst_PreviewBrowser::initTestCase()
{
    Q_INIT_RESOURCE(hoopline_resources);
    m_fixture = std::make_unique<PreviewFixture>();
}

void tst_PreviewBrowser::init()
{
    GlobalSettings().setGridScaleFactor(100);
    m_project = QSharedPointer<Project>::create();
    m_models = std::make_unique<FilterSelectionModel>(m_project);
}

void tst_PreviewBrowser::cleanup()
{
    m_browser.reset();
    m_models.reset();
    m_files.clear();
    m_project.reset();
}

void tst_PreviewBrowser::addFiles(int count)
{
    for (int i = 0; i < count; ++i) {
        m_files.append(PreviewFixture::makeFile(
            m_project.data(), QStringLiteral("/designs/%1.dst").arg(i, 4, 10, QLatin1Char('0'))));
    }
    m_project->setFiles(m_files);
}

void tst_PreviewBrowser::show(const QSize &size)
{
    m_browser = std::make_unique<PreviewBrowser>(nullptr, m_project, m_models.get());
    m_view = m_browser->findChild<GridGraphicsView *>();
    m_browser->resize(size);
    m_browser->show();
    QVERIFY(QTest::qWaitForWindowActive(m_browser.get()));
    m_view->setFocus();
    viewport()->repaint();
}

void tst_PreviewBrowser::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_view, key, modifiers);
}

GridEmbroideryItem *tst_PreviewBrowser::card(int index) const
{
    const QList<QGraphicsItem *> items = m_view->scene()->items();
    for (QGraphicsItem *item : items) {
        auto *found = dynamic_cast<GridEmbroideryItem *>(item);
        if (found != nullptr && found->file() == m_files.at(index)) {
            return found;
        }
    }
    return nullptr;
}

QRect tst_PreviewBrowser::cardRect(int index) const
{
    return m_view->mapFromScene(card(index)->sceneBoundingRect()).boundingRect();
}

void tst_PreviewBrowser::startZoom_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("started");
    QTest::newRow("listed") << 150 << 150;
    QTest::newRow("smallest") << 33 << 33;
    QTest::newRow("not listed") << 120 << 100;
    QTest::newRow("nonsense") << -7 << 100;
}

void tst_PreviewBrowser::startZoom()
{
    QFETCH(int, stored);
    QFETCH(int, started);
    GlobalSettings().setGridScaleFactor(stored);
    show();
    QCOMPARE(m_view->currentZoomValue(), started / 100.0);
    m_browser.reset();
    QCOMPARE(GlobalSettings().gridScaleFactor(), started);
}

void tst_PreviewBrowser::zoomStepsEndAtTheEnds()
{
    addFiles(3);
    show();
    QList<int> steps;
    for (int i = 0; i < 4; ++i) {
        m_browser->zoomIn();
        steps.append(qRound(m_view->currentZoomValue() * 100));
    }
    for (int i = 0; i < 7; ++i) {
        m_browser->zoomOut();
        steps.append(qRound(m_view->currentZoomValue() * 100));
    }
    QCOMPARE(steps, QList<int>({150, 200, 200, 200, 150, 100, 75, 50, 33, 33, 33}));
}

void tst_PreviewBrowser::zoomKeepsTheSelectionInView()
{
    addFiles(200);
    show();
    m_models->selection()->setSelection({m_files.at(150)});
    m_browser->zoomIn();
    QVERIFY(viewport()->rect().intersects(cardRect(150)));
    m_browser->zoomOut();
    m_browser->zoomOut();
    QVERIFY(viewport()->rect().contains(cardRect(150)));
}

void tst_PreviewBrowser::gapsStayOnScreen()
{
    addFiles(4);
    show(QSize(1300, 700));
    for (const int percent : {100, 150, 200}) {
        QCOMPARE(qRound(m_view->currentZoomValue() * 100), percent);
        const double zoom = m_view->currentZoomValue();
        const double gap = (card(1)->x() - card(0)->sceneBoundingRect().right()) * zoom;
        QVERIFY2(gap > 18.5 && gap <= 20.0, qPrintable(QString::number(gap)));
        m_browser->zoomIn();
    }
}

void tst_PreviewBrowser::columnsFollowTheWindow()
{
    addFiles(8);
    show(QSize(800, 1200));
    QCOMPARE(card(3)->y() > card(2)->y(), true);
    QCOMPARE(cardRect(0).top(), 10);
    m_browser->resize(1100, 1200);
    QTRY_COMPARE(card(3)->y(), card(2)->y());
    QVERIFY(card(4)->y() > card(3)->y());
    QVERIFY(qAbs(cardRect(0).left() - (viewport()->width() - 1 - cardRect(3).right())) <= 2);
}

void tst_PreviewBrowser::windowNarrowerThanACardShowsAll()
{
    addFiles(3);
    show(QSize(150, 500));
    QCOMPARE(card(0)->y() < card(1)->y() && card(1)->y() < card(2)->y(), true);
    QCOMPARE(card(0)->x(), card(2)->x());
    m_view->ensureVisible(card(2));
    QVERIFY(viewport()->rect().intersects(cardRect(2)));
}

void tst_PreviewBrowser::keysSelect()
{
    addFiles(40);
    show();
    press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(selected().size(), 0);
    press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(selected(), m_files);
    press(Qt::Key_D);
    QCOMPARE(selected().size(), 40);
    press(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(selected().size(), 0);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Escape, Qt::ShiftModifier);
    QCOMPARE(selected().size(), 40);
    press(Qt::Key_Escape);
    QCOMPARE(selected().size(), 0);
}

void tst_PreviewBrowser::rubberBandTellsGridOrder()
{
    addFiles(8);
    show();
    // From the gap below the second card up and left over the first two rows' start.
    const QPoint from(cardRect(4).right() + 8, cardRect(4).bottom() + 8);
    const QPoint to(cardRect(0).left() - 4, cardRect(0).top() - 4);
    QTest::mousePress(viewport(), Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(viewport(), (from + to) / 2);
    QMouseEvent move(QEvent::MouseMove, to, viewport()->mapToGlobal(to), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport(), &move);
    QTest::mouseRelease(viewport(), Qt::LeftButton, Qt::NoModifier, to);
    QCOMPARE(selected(), Files({m_files.at(0), m_files.at(1), m_files.at(3), m_files.at(4)}));
}

void tst_PreviewBrowser::clickSelectsAndModelSelects()
{
    addFiles(5);
    show();
    QTest::mouseClick(viewport(), Qt::LeftButton, Qt::NoModifier, cardRect(2).center());
    QCOMPARE(selected(), Files({m_files.at(2)}));
    // On the label, with Control.
    const QPoint label(cardRect(0).center().x(), cardRect(0).bottom() - 5);
    QTest::mouseClick(viewport(), Qt::LeftButton, Qt::ControlModifier, label);
    QCOMPARE(selected(), Files({m_files.at(0), m_files.at(2)}));
    m_models->selection()->setSelection({m_files.at(4)});
    QCOMPARE(m_view->scene()->selectedItems(), QList<QGraphicsItem *>({card(4)}));
    m_models->selection()->clearSelection();
    QVERIFY(m_view->scene()->selectedItems().isEmpty());
}

void tst_PreviewBrowser::filterShrinksTheSelection()
{
    addFiles(6);
    m_files.at(1)->setAbsoluteFilePath(QStringLiteral("/designs/rose.pes"));
    m_files.at(3)->setAbsoluteFilePath(QStringLiteral("/designs/star.pes"));
    show();
    m_models->selection()->setSelection({m_files.at(0), m_files.at(3)});
    m_models->filter()->setFileType(QStringLiteral("pes"));
    QCOMPARE(selected(), Files({m_files.at(3)}));
    QVERIFY(card(0) == nullptr);
    m_models->filter()->setFileType(QString());
    QCOMPARE(selected(), Files({m_files.at(3)}));
    QVERIFY(card(0) != nullptr);
    m_project->setFiles(m_files.mid(4));
    QCOMPARE(m_view->scene()->items().size() >= 2, true);
    QVERIFY(selected().isEmpty());
}

void tst_PreviewBrowser::starTogglesTheFlag()
{
    addFiles(4);
    show();
    const auto star = [this](int index) {
        return static_cast<GridFavoriteItem *>(card(index)->childItems().first());
    };
    const QPoint onStar = cardRect(1).topLeft() + QPoint(5, 5) + QPoint(8, 8);
    QTest::mouseMove(viewport(), cardRect(3).center());
    QTRY_VERIFY(!star(1)->isVisible());
    QTest::mouseMove(viewport(), cardRect(1).center());
    QTRY_VERIFY(star(1)->isVisible());
    QTest::mouseClick(viewport(), Qt::RightButton, Qt::NoModifier, onStar);
    QVERIFY(!m_files.at(1)->isFavorite());
    QTest::mouseClick(viewport(), Qt::LeftButton, Qt::NoModifier, onStar);
    QVERIFY(m_files.at(1)->isFavorite());
    QVERIFY(selected().isEmpty());
    QVERIFY(m_project->undoStack()->canUndo());

    QTest::mouseMove(viewport(), cardRect(3).center());
    QTRY_VERIFY(star(3)->isVisible());
    QVERIFY(star(1)->isVisible());
    QTest::mouseClick(viewport(), Qt::LeftButton, Qt::NoModifier, onStar);
    QVERIFY(!m_files.at(1)->isFavorite());
    QTest::mouseMove(viewport(), cardRect(2).center());
    QTRY_VERIFY(!star(1)->isVisible());
}

void tst_PreviewBrowser::previewsArriveOnTheCards()
{
    PreviewFixture::storePreview("wide red", QSize(400, 200), Qt::red);
    addFiles(1);
    m_files.first()->setContentHash("wide red");
    show();
    const QPoint center = cardRect(0).topLeft() + QPoint(110, 110);
    const auto color = [this](const QPoint &pos) {
        return viewport()->grab().toImage().pixelColor(pos * viewport()->devicePixelRatio());
    };
    QTRY_COMPARE(color(center), QColor(Qt::red));
    // 200 by 100 in the middle of the square of 220.
    QCOMPARE(color(center + QPoint(-98, -48)), QColor(Qt::red));
    QCOMPARE(color(center + QPoint(98, 48)), QColor(Qt::red));
    QCOMPARE(color(center + QPoint(0, -53)), QColor(Qt::white));
    QCOMPARE(color(center + QPoint(-103, 0)), QColor(Qt::white));
}

void tst_PreviewBrowser::spaceOpensTheOnlySelected_data()
{
    QTest::addColumn<int>("selectedCount");
    QTest::addColumn<bool>("byDoubleClick");
    QTest::addColumn<bool>("opens");
    QTest::newRow("none") << 0 << false << false;
    QTest::newRow("one") << 1 << false << true;
    QTest::newRow("two") << 2 << false << false;
    QTest::newRow("double click") << 0 << true << true;
}

void tst_PreviewBrowser::spaceOpensTheOnlySelected()
{
    QFETCH(int, selectedCount);
    QFETCH(bool, byDoubleClick);
    QFETCH(bool, opens);
    addFiles(3);
    show();
    m_models->selection()->setSelection(m_files.mid(0, selectedCount));
    bool opened = false;
    QTimer::singleShot(0, this, [&opened]() {
        auto *sheet = qobject_cast<PreviewSheet *>(QApplication::activeModalWidget());
        opened = sheet != nullptr;
        if (opened) {
            sheet->close();
        }
    });
    if (byDoubleClick) {
        QTest::mouseDClick(viewport(), Qt::LeftButton, Qt::NoModifier, cardRect(1).center());
    } else {
        press(Qt::Key_Space, Qt::ShiftModifier);
    }
    QCoreApplication::processEvents();
    QCOMPARE(opened, opens);
}

void tst_PreviewBrowser::anythingClosesTheSheet_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("key") << 0;
    QTest::newRow("mouse") << 1;
    QTest::newRow("button") << 2;
}

void tst_PreviewBrowser::anythingClosesTheSheet()
{
    QFETCH(int, how);
    PreviewSheet sheet(nullptr, QPixmap(QSize(40, 40)));
    sheet.show();
    QVERIFY(QTest::qWaitForWindowExposed(&sheet));
    auto *button = sheet.findChild<QPushButton *>();
    if (how == 0) {
        QTest::keyClick(&sheet, Qt::Key_X);
    } else if (how == 1) {
        QTest::mouseClick(sheet.findChild<QLabel *>(), Qt::LeftButton);
    } else {
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QVERIFY(!sheet.isVisible());
}

void tst_PreviewBrowser::sheetEnlarges()
{
    QPixmap pixmap(400, 301);
    pixmap.fill(Qt::red);
    PreviewSheet sheet(nullptr, pixmap);
    QCOMPARE(sheet.windowType(), Qt::Sheet);
    const QPixmap shown = sheet.findChild<QLabel *>()->pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.size() / shown.devicePixelRatio(), QSize(600, 452));
}

void tst_PreviewBrowser::middleButtonPans()
{
    addFiles(60);
    show();
    QScrollBar *bar = m_view->verticalScrollBar();
    bar->setValue(200);
    const int before = bar->value();
    const QPoint from = viewport()->rect().center();
    QTest::mousePress(viewport(), Qt::MiddleButton, Qt::NoModifier, from);
    QCOMPARE(m_view->dragMode(), QGraphicsView::ScrollHandDrag);
    const QPoint to = from - QPoint(0, 50);
    QMouseEvent move(QEvent::MouseMove, to, viewport()->mapToGlobal(to), Qt::NoButton,
                     Qt::MiddleButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport(), &move);
    QTest::mouseRelease(viewport(), Qt::MiddleButton, Qt::NoModifier, to);
    QCOMPARE(bar->value(), before + 50);
    QCOMPARE(m_view->dragMode(), QGraphicsView::RubberBandDrag);
    QVERIFY(m_view->isInteractive());
    QVERIFY(selected().isEmpty());
}

void tst_PreviewBrowser::pinchZoomsWithinItsLimits()
{
    addFiles(3);
    show();
    const auto pinch = [this](double factor) {
        QPinchGesture gesture;
        gesture.setTotalScaleFactor(factor);
        QGestureEvent event({&gesture});
        QCoreApplication::sendEvent(m_view, &event);
    };
    pinch(1.2);
    QCOMPARE(m_view->currentZoomValue(), 1.2);
    pinch(1.5);
    QCOMPARE(m_view->currentZoomValue(), 1.5);
    pinch(100.0);
    QCOMPARE(m_view->currentZoomValue(), 10.0);
    QCOMPARE(m_view->transform().m11(), 10.0);
    // The next step goes on from the step before the pinch.
    m_browser->zoomIn();
    QCOMPARE(m_view->currentZoomValue(), 1.5);
}

void tst_PreviewBrowser::wheelOnlyScrolls()
{
    addFiles(60);
    show();
    const QPointF pos = viewport()->rect().center();
    for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::ControlModifier}) {
        const int before = m_view->verticalScrollBar()->value();
        QWheelEvent wheel(pos, viewport()->mapToGlobal(pos.toPoint()), QPoint(), QPoint(0, -120),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(viewport(), &wheel);
        QVERIFY(m_view->verticalScrollBar()->value() > before);
        QCOMPARE(m_view->currentZoomValue(), 1.0);
    }
}

QTEST_MAIN(tst_PreviewBrowser)
#include "tst_previewbrowser.moc"
