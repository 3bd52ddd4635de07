#include "GridFixture.h"
#include "support/Rows.h"
#include "widgets/style/WidgetHelper.h"

#include <memory>
#include <QScrollBar>

/** Where the sheet stands after what the user did, and what the mouse does on it. */
class tst_gridmouse : public QObject
{
    Q_OBJECT

private slots:
    void folderStartsAtItsTop()
    {
        GridFixture grid(60);
        grid.press(Qt::Key_End);
        QScrollBar *bar = grid.view->verticalScrollBar();
        QVERIFY(bar->value() > 0);
        // All of its cards are still there.
        grid.models.filter()->setDirectory("/designs/");
        QCOMPARE(bar->value(), bar->minimum());
    }

    void changesLeaveTheSheetWhereItIs_data()
    {
        const Rows<int, int> row("firstKept", "seen");
        row("nothing in view goes", 3, 18);
        row("the first in view go", 20, 20);
        row("all in view go", 40, 40);
    }

    void changesLeaveTheSheetWhereItIs()
    {
        QFETCH(int, firstKept);
        QFETCH(int, seen);
        GridFixture grid(60);
        QScrollBar *bar = grid.view->verticalScrollBar();
        bar->setValue(grid.cardRect(18).top());
        QCOMPARE(grid.cardRect(18).top(), 0);
        grid.project->setFiles(grid.files.mid(firstKept));
        const int index = grid.scene->indexOf(grid.files.at(seen));
        if (seen == firstKept && firstKept > 30)
            QCOMPARE(bar->value(), bar->minimum());
        else
            QCOMPARE(grid.cardRect(index).top(), 0);
    }

    void zoomStaysWhereTheUserLooks()
    {
        GridFixture grid(60);
        grid.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(grid.selected().size(), 60);
        grid.view->centerOn(grid.card(31));
        grid.browser->zoomIn();
        QVERIFY(grid.isInView(31));
        grid.browser->zoomOut();
        grid.browser->zoomOut();
        QVERIFY(grid.isInView(31));
        // One that is out of view comes into it.
        grid.press(Qt::Key_Home);
        grid.view->centerOn(grid.card(50));
        grid.browser->zoomIn();
        QVERIFY(grid.isInView(0));
    }

    void rubberBandScrollsAtTheEdge_data()
    {
        const Rows<bool> row("down");
        row("down", true);
        row("up", false);
    }

    void rubberBandScrollsAtTheEdge()
    {
        QFETCH(bool, down);
        GridFixture grid(24);
        QScrollBar *bar = grid.view->verticalScrollBar();
        bar->setValue(down ? bar->minimum() : bar->maximum());
        // Between two cards.
        const QPoint start(grid.cardRect(1).left() - 3, grid.viewport()->height() / 2);
        const QPoint end(grid.viewport()->width() - 3, down ? grid.viewport()->height() + 40 : -40);
        QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, start);
        for (const QPoint &pos : {(start + end) / 2, end}) {
            QMouseEvent move(QEvent::MouseMove, pos, grid.viewport()->mapToGlobal(pos),
                             Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(grid.viewport(), &move);
        }
        QTRY_COMPARE(bar->value(), down ? bar->maximum() : bar->minimum());
        QTRY_VERIFY(grid.selected().contains(grid.files.at(down ? 23 : 2)));
        QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, end);
        bar->setValue(bar->maximum() / 2);
        const int after = bar->value();
        QTest::qWait(60);
        QCOMPARE(bar->value(), after);
    }

    void selectionReachesBeyondTheView()
    {
        GridFixture grid(60);
        QScrollBar *bar = grid.view->verticalScrollBar();
        const auto show = [&](int index) {
            bar->setValue(bar->value() + grid.cardRect(index).top());
            grid.viewport()->repaint();
        };
        grid.press(Qt::Key_A, Qt::ControlModifier);
        show(30);
        // A click on one of several selects it alone, also among those that nobody sees.
        grid.click(30);
        QCOMPARE(grid.selected(), grid.range(30, 30));
        show(57);
        grid.click(57, Qt::ControlModifier);
        QCOMPARE(grid.selected(), grid.range(30, 30) + grid.range(57, 57));
        // A band drawn with Ctrl adds to it, one without begins anew, and so does the bare ground.
        const QPoint ground = grid.cardRect(58).topLeft() - QPoint(4, 4);
        const auto band = [&](Qt::KeyboardModifiers modifiers, const QPoint &to) {
            QTest::mousePress(grid.viewport(), Qt::LeftButton, modifiers, ground);
            QMouseEvent move(QEvent::MouseMove, to, grid.viewport()->mapToGlobal(to), Qt::NoButton,
                             Qt::LeftButton, modifiers);
            QCoreApplication::sendEvent(grid.viewport(), &move);
            QTest::mouseRelease(grid.viewport(), Qt::LeftButton, modifiers, to);
        };
        band(Qt::ControlModifier, grid.cardRect(58).center());
        QCOMPARE(grid.selected(), grid.range(30, 30) + grid.range(57, 58));
        band(Qt::NoModifier, grid.cardRect(58).center());
        QCOMPARE(grid.selected(), grid.range(58, 58));
        grid.press(Qt::Key_A, Qt::ControlModifier);
        band(Qt::NoModifier, ground);
        QVERIFY(grid.selected().isEmpty());
    }

    void doubleClickOnAStarIsOneClick()
    {
        GridFixture grid(3);
        grid.click(1);
        const QPoint star = grid.cardRect(0).topLeft() + QPoint(13, 13);
        bool sheetSeen = false;
        QTimer::singleShot(0, grid.browser, [&sheetSeen] {
            if (QWidget *sheet = QApplication::activeModalWidget()) {
                sheetSeen = true;
                sheet->close();
            }
        });
        QTest::mouseMove(grid.viewport(), grid.cardRect(0).center());
        QTRY_VERIFY(grid.card(0)->childItems().first()->isVisible());
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, star);
        QVERIFY(grid.files.at(0)->isFavorite());
        QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, star);
        QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, star);
        QCoreApplication::processEvents();
        QVERIFY(!sheetSeen);
        QVERIFY(grid.files.at(0)->isFavorite());
    }

    void shortenedNameHasAToolTip()
    {
        GridFixture grid(2);
        const QString name = "a rose by any other name would smell as sweet.dst";
        grid.files.at(0)->setAbsoluteFilePath("/designs/" + name);
        grid.viewport()->repaint();
        QVERIFY(grid.card(0)->toolTip().contains(name));
        QVERIFY(grid.card(1)->toolTip().isEmpty());
    }

    void paleThreadHasAGround()
    {
        PreviewFixture::storePreview("picture", QSize(200, 100), Qt::transparent);
        GridFixture grid(2);
        for (const auto &file : std::as_const(grid.files))
            static_cast<File *>(file.data())->setContentHash("picture");
        const auto thread = QSharedPointer<Thread>::create(grid.project.data());
        thread->setColor(Qt::white);
        grid.files.at(0)->setThreads({thread});
        const auto contrastOf = [&grid](int card) {
            const QPoint inset(4, 100);
            const QImage picture = grid.viewport()->grab().toImage();
            return WidgetHelper::contrast(picture.pixelColor(grid.cardRect(card).topLeft() + inset),
                                          Qt::white);
        };
        QTRY_VERIFY(contrastOf(0) > 1.5);
        QCOMPARE(contrastOf(1), 1.0);
    }

private:
    const PreviewFixture m_fixture;
};

QTEST_MAIN(tst_gridmouse)
#include "tst_gridmouse.moc"
