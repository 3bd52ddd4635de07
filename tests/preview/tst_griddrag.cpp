#include "GridFixture.h"
#include "preview/grid/DesignDrag.h"
#include "support/Rows.h"
#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTextEdit>

/** The files that are being dragged out of the view; none without a drag. */
static QStringList dragged(const GridFixture &grid)
{
    // What is over is deleted when events are processed.
    const QDrag *drag = grid.view->findChild<QDrag *>();
    QStringList paths;
    if (drag != nullptr) {
        const QList<QUrl> urls = drag->mimeData()->urls();
        for (const QUrl &url : urls) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
}

static QStringList pathsOf(const Files &files)
{
    QStringList paths;
    for (const QSharedPointer<IFile> &file : files) {
        paths.append(file->absoluteFilePath());
    }
    return paths;
}

/** Presses on a card and moves by @p distance pixels; the button stays down. */
static void pull(const GridFixture &grid, int card, int distance,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWidget *viewport = grid.viewport();
    const QPoint from = grid.cardRect(card).center();
    QTest::mousePress(viewport, Qt::LeftButton, modifiers, from);
    const QPoint to = from + QPoint(distance, 0);
    QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     modifiers);
    QCoreApplication::sendEvent(viewport, &move);
}

static bool takesDrop(QWidget *target, const QMimeData *data)
{
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    return enter.isAccepted();
}

class tst_griddrag : public QObject
{
    Q_OBJECT

private slots:
    void dragsWhatIsSelected_data()
    {
        const Rows<QList<int>, int, Qt::KeyboardModifiers, QList<int>> row("selected", "pressed",
                                                                           "modifiers", "dragged");
        const Qt::KeyboardModifiers none = Qt::NoModifier;
        const Qt::KeyboardModifiers control = Qt::ControlModifier;
        const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
        using Cards = QList<int>;
        row("a card", Cards(), 1, none, Cards{1});
        row("another card", Cards{0, 2}, 1, none, Cards{1});
        row("one of the selected", Cards{4, 0, 2}, 2, none, Cards{0, 2, 4});
        row("Ctrl, one more", Cards{2, 0}, 1, control, Cards{0, 1, 2});
        row("Ctrl, one of them", Cards{2, 0}, 2, control, Cards{0, 2});
        row("Shift, a range", Cards{0}, 2, shift, Cards{0, 1, 2});
    }

    void dragsWhatIsSelected()
    {
        QFETCH(QList<int>, selected);
        QFETCH(int, pressed);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QList<int>, dragged);
        GridFixture grid(5);
        for (int card : selected) {
            grid.click(card, Qt::ControlModifier);
        }
        Files files;
        for (int card : dragged) {
            files.append(grid.files.at(card));
        }
        pull(grid, pressed, QApplication::startDragDistance(), modifiers);
        QCOMPARE(::dragged(grid), pathsOf(files));
        QCOMPARE(grid.selected(), files);

        // The release went elsewhere; the next click is like any other.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        grid.click(3);
        QCOMPARE(grid.selected(), Files{grid.files.at(3)});
        QVERIFY(::dragged(grid).isEmpty());
    }

    void leavesClicksAndFramesAlone()
    {
        GridFixture grid(5);
        QWidget *viewport = grid.viewport();
        pull(grid, 0, QApplication::startDragDistance() - 1);
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, grid.cardRect(0).center());
        QVERIFY(dragged(grid).isEmpty());
        QCOMPARE(grid.selected(), grid.range(0, 0));

        const QPoint ground = grid.cardRect(0).topLeft() - QPoint(5, 5);
        grid.drag(Qt::LeftButton, ground, grid.cardRect(1).center());
        QVERIFY(dragged(grid).isEmpty());
        QCOMPARE(grid.selected(), grid.range(0, 1));

        grid.drag(Qt::RightButton, grid.cardRect(0).center(), grid.cardRect(1).center());
        grid.drag(Qt::MiddleButton, grid.cardRect(0).center(), grid.cardRect(1).center());
        QVERIFY(dragged(grid).isEmpty());
        QCOMPARE(grid.selected(), grid.range(0, 1));

        // The star takes the press for itself.
        grid.files.at(2)->setFavorite(true);
        const QPoint star = grid.cardRect(2).topLeft() + QPoint(12, 12);
        grid.drag(Qt::LeftButton, star, star + QPoint(60, 60));
        QVERIFY(dragged(grid).isEmpty());
        QVERIFY(!grid.files.at(2)->isFavorite());
    }

    void picturesTheCard()
    {
        QPixmap preview(400, 200);
        preview.fill(Qt::red);
        for (qreal ratio : {1.0, 2.0}) {
            const QPixmap one = DesignDrag::picture(preview, 1, ratio);
            const QSizeF size = QSizeF(one.size()) / one.devicePixelRatio();
            QCOMPARE(size, QSizeF(96, 96));
            const QImage image = one.toImage();
            const QPoint center = image.rect().center();
            QCOMPARE(image.pixelColor(center), QColor(Qt::red));
            QCOMPARE(image.pixelColor(center.x(), int(20 * ratio)), QColor(Qt::white));
            QVERIFY(DesignDrag::picture(preview, 12, ratio).toImage() != image);
        }
    }

    void nothingIsDroppedOnItself()
    {
        QTextEdit edit;
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile("/designs/00.dst")});
        QVERIFY(takesDrop(edit.viewport(), &data));
        {
            const DropRefusal refusal;
            QVERIFY(!takesDrop(edit.viewport(), &data));
        }
        QVERIFY(takesDrop(edit.viewport(), &data));
    }

private:
    const PreviewFixture m_fixture;
};

QTEST_MAIN(tst_griddrag)
#include "tst_griddrag.moc"
