#include "GridFixture.h"
#include "preview/grid/GridFavoriteItem.h"
#include "preview/grid/PreviewSheet.h"
#include "support/Rows.h"
#include <functional>
#include <memory>
#include <QGestureEvent>
#include <QLabel>
#include <QPinchGesture>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

class tst_PreviewBrowser : public QObject
{
    Q_OBJECT

private slots:
    void startZoom_data()
    {
        const Rows<int, int> row("stored", "started");
        row("listed", 150, 150);
        row("not listed", 120, 100);
        row("nonsense", -7, 100);
    }

    void startZoom()
    {
        QFETCH(int, stored);
        QFETCH(int, started);
        {
            GridFixture grid(0, QSize(800, 720), stored);
            QCOMPARE(grid.view->currentZoomValue(), started / 100.0);
        }
        QCOMPARE(GlobalSettings().gridScaleFactor(), started);
    }

    void zoomStepsEndAtTheEnds()
    {
        GridFixture grid(3);
        QList<int> steps;
        for (int i = 0; i < 11; ++i) {
            i < 4 ? grid.browser->zoomIn() : grid.browser->zoomOut();
            steps.append(qRound(grid.view->currentZoomValue() * 100));
        }
        QCOMPARE(steps, QList<int>({150, 200, 200, 200, 150, 100, 75, 50, 33, 33, 33}));
    }

    void columnsFollowTheWindow()
    {
        GridFixture grid(8, QSize(800, 1200));
        QVERIFY(grid.card(3)->y() > grid.card(2)->y());
        // A few cards stand at the top, not in the middle.
        QCOMPARE(grid.cardRect(0).top(), 10);
        grid.window.resize(1100, 1200);
        QTRY_COMPARE(grid.card(3)->y(), grid.card(2)->y());
        QVERIFY(grid.card(4)->y() > grid.card(3)->y());
        const int right = grid.viewport()->width() - 1 - grid.cardRect(3).right();
        QVERIFY(qAbs(grid.cardRect(0).left() - right) <= 2);
    }

    void labelsGrowWithTheFont()
    {
        GridFixture grid(1);
        const int height = grid.cardRect(0).height();
        const QFont usual = QApplication::font();
        QFont large = usual;
        large.setPointSize(2 * usual.pointSize());
        QApplication::setFont(large);
        QVERIFY(grid.cardRect(0).height() > height);
        QApplication::setFont(usual);
        QCOMPARE(grid.cardRect(0).height(), height);
    }

    void keysSelect()
    {
        GridFixture grid(40);
        grid.press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(grid.selected().size(), 0);
        grid.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(grid.selected(), grid.files);
        grid.press(Qt::Key_D);
        QCOMPARE(grid.selected().size(), 40);
        grid.press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(grid.selected().size(), 0);
        grid.press(Qt::Key_A, Qt::ControlModifier);
        grid.press(Qt::Key_Escape, Qt::ShiftModifier);
        QCOMPARE(grid.selected().size(), 40);
        grid.press(Qt::Key_Escape);
        QCOMPARE(grid.selected().size(), 0);
    }

    void mouseSelects()
    {
        GridFixture grid(8);
        // From right below the fifth card to left above the first.
        grid.drag(Qt::LeftButton, grid.cardRect(4).bottomRight() + QPoint(8, 8),
                  grid.cardRect(0).topLeft() - QPoint(4, 4));
        QCOMPARE(grid.selected(), grid.range(0, 1) + grid.range(3, 4));
        grid.click(2);
        QCOMPARE(grid.selected(), grid.range(2, 2));
        grid.click(0, Qt::ControlModifier);
        QCOMPARE(grid.selected(), grid.range(0, 0) + grid.range(2, 2));
        grid.click(1, Qt::NoModifier, Qt::RightButton);
        QCOMPARE(grid.selected().size(), 2);
        grid.click(4, Qt::ShiftModifier);
        QCOMPARE(grid.selected(), grid.range(0, 4));
        grid.models.selection()->setSelection(grid.range(5, 5));
        QCOMPARE(grid.scene->selectedFiles(), grid.range(5, 5));
        // From outside it comes without being told again.
        grid.click(4, Qt::ControlModifier);
        QCOMPARE(grid.selected(), grid.range(4, 5));
    }

    void starTogglesTheFlag()
    {
        GridFixture grid(4);
        const auto star = [&grid](int index) { return grid.card(index)->childItems().first(); };
        const auto point = [&grid](int index) {
            QTest::mouseMove(grid.viewport(), grid.cardRect(index).center());
        };
        const auto clickStar = [&grid](Qt::MouseButton button) {
            QTest::mouseClick(grid.viewport(), button, Qt::NoModifier,
                              grid.cardRect(1).topLeft() + QPoint(13, 13));
        };
        point(3);
        QTRY_VERIFY(!star(1)->isVisible());
        point(1);
        QTRY_VERIFY(star(1)->isVisible());
        clickStar(Qt::RightButton);
        QVERIFY(!grid.files.at(1)->isFavorite());
        clickStar(Qt::LeftButton);
        QVERIFY(grid.files.at(1)->isFavorite());
        QVERIFY(grid.selected().isEmpty());
        QVERIFY(grid.project->undoStack()->canUndo());

        point(3);
        QTRY_VERIFY(star(3)->isVisible());
        QVERIFY(star(1)->isVisible());
        clickStar(Qt::LeftButton);
        QVERIFY(!grid.files.at(1)->isFavorite());
        point(2);
        QTRY_VERIFY(!star(1)->isVisible());
    }

    void previewsArriveOnTheCards()
    {
        PreviewFixture::storePreview("wide red", QSize(400, 200), Qt::red);
        GridFixture grid(1);
        grid.files.first()->setContentHash("wide red");
        grid.card(0)->update();
        const QPoint center = grid.cardRect(0).topLeft() + QPoint(110, 110);
        const auto color = [&grid](const QPoint &pos) {
            const QImage image = grid.viewport()->grab().toImage();
            return image.pixelColor(pos * image.devicePixelRatio());
        };
        QTRY_COMPARE(color(center), QColor(Qt::red));
        // 200 by 100 in the middle of the square of 220.
        QCOMPARE(color(center + QPoint(-98, -48)), QColor(Qt::red));
        QCOMPARE(color(center + QPoint(98, 48)), QColor(Qt::red));
        QCOMPARE(color(center + QPoint(0, -53)), QColor(Qt::white));
        QCOMPARE(color(center + QPoint(-103, 0)), QColor(Qt::white));
    }

    void spaceOpensTheOnlySelected_data()
    {
        const Rows<int, bool, bool> row("selectedCount", "byDoubleClick", "opens");
        row("none", 0, false, false);
        row("one", 1, false, true);
        row("two", 2, false, false);
        row("double click", 0, true, true);
    }

    void spaceOpensTheOnlySelected()
    {
        QFETCH(int, selectedCount);
        QFETCH(bool, byDoubleClick);
        GridFixture grid(3);
        grid.models.selection()->setSelection(grid.files.mid(0, selectedCount));
        bool opened = false;
        QTimer::singleShot(0, this, [&opened]() {
            auto *sheet = qobject_cast<PreviewSheet *>(QApplication::activeModalWidget());
            opened = sheet != nullptr && sheet->close();
        });
        if (byDoubleClick) {
            QTest::mouseDClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier,
                               grid.cardRect(1).center());
        } else {
            grid.press(Qt::Key_Space, Qt::ShiftModifier);
        }
        QCoreApplication::processEvents();
        QTEST(opened, "opens");
    }

    void anythingClosesTheSheet()
    {
        QPixmap preview(400, 301);
        preview.fill(Qt::red);
        PreviewSheet sheet(nullptr, preview, "<b>rose.dst");
        auto *picture = sheet.findChild<QLabel *>();
        auto *button = sheet.findChild<QPushButton *>();
        const QPixmap shown = picture->pixmap(Qt::ReturnByValue);
        QCOMPARE(shown.size() / shown.devicePixelRatio(), QSize(600, 452));
        QCOMPARE(sheet.findChildren<QLabel *>().last()->text(), "<b>rose.dst");
        const QList<std::function<void()>> ways = {
            [&]() { QTest::keyClick(&sheet, Qt::Key_X); },
            [&]() { QTest::mouseClick(picture, Qt::LeftButton); },
            [&]() { QTest::mouseClick(button, Qt::LeftButton); },
        };
        for (const std::function<void()> &close : ways) {
            sheet.show();
            close();
            QVERIFY(!sheet.isVisible());
        }
    }

    void middleButtonPans()
    {
        GridFixture grid(60);
        QScrollBar *bar = grid.view->verticalScrollBar();
        bar->setValue(200);
        const int before = bar->value();
        const QPoint from = grid.viewport()->rect().center();
        grid.drag(Qt::MiddleButton, from, from - QPoint(0, 50));
        QCOMPARE(bar->value(), before + 50);
        QCOMPARE(grid.view->dragMode(), QGraphicsView::RubberBandDrag);
        QVERIFY(grid.view->isInteractive());
        QVERIFY(grid.selected().isEmpty());
    }

    void pinchZoomsWithinItsLimits()
    {
        GridFixture grid(3);
        const auto pinch = [&grid](double factor) {
            QPinchGesture gesture;
            gesture.setTotalScaleFactor(factor);
            QGestureEvent event({&gesture});
            QCoreApplication::sendEvent(grid.view, &event);
            return grid.view->currentZoomValue();
        };
        QCOMPARE(pinch(1.2), 1.2);
        QCOMPARE(pinch(1.5), 1.5);
        QCOMPARE(pinch(100.0), 10.0);
        QCOMPARE(grid.view->transform().m11(), 10.0);
        // The next step goes on from the step before the pinch.
        grid.browser->zoomIn();
        QCOMPARE(grid.view->currentZoomValue(), 1.5);
    }

private:
    const PreviewFixture m_fixture;
};

QTEST_MAIN(tst_PreviewBrowser)
#include "tst_previewbrowser.moc"
