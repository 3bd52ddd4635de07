#include "GridFixture.h"
#include "support/Rows.h"
#include "widgets/style/WidgetStyles.h"
#include <memory>
#include <QAccessible>
#include <QMenu>
#include <QScrollBar>
#include <QTimer>

/** The grid without a mouse. */
class tst_GridKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void movesAndSelects()
    {
        GridFixture grid(50);
        QCOMPARE(grid.scene->sheetLayout().columns(), 3);
        // The last row, of two cards, begins with 48.
        const QList<QPair<Qt::Key, int>> way = {
            {Qt::Key_Down, 0},   {Qt::Key_Down, 3},     {Qt::Key_Right, 4},
            {Qt::Key_End, 49},   {Qt::Key_Right, 49},   {Qt::Key_Up, 46},
            {Qt::Key_Right, 47}, {Qt::Key_Down, 49},    {Qt::Key_Home, 0},
            {Qt::Key_Left, 0},   {Qt::Key_Up, 0},       {Qt::Key_PageDown, 6},
            {Qt::Key_PageUp, 0}, {Qt::Key_PageDown, 6}, {Qt::Key_PageDown, 12},
            {Qt::Key_Left, 11},
        };
        for (const QPair<Qt::Key, int> &step : way) {
            grid.press(step.first, step.first == Qt::Key_Up ? Qt::KeypadModifier : Qt::NoModifier);
            QCOMPARE(grid.selected(), grid.range(step.second, step.second));
        }
        grid.view->zoomTo(0.5);
        QVERIFY(grid.scene->sheetLayout().columns() > 3);
        grid.press(Qt::Key_Down);
        QCOMPARE(grid.current(), 11 + grid.scene->sheetLayout().columns());
    }

    void startsWhereTheUserLooks()
    {
        GridFixture grid(50);
        grid.view->verticalScrollBar()->setValue(1400);
        grid.press(Qt::Key_Right);
        QVERIFY(grid.current() > 6);
        QVERIFY(grid.isInView(grid.current()));
    }

    void staysInView()
    {
        GridFixture grid(50);
        for (int i = 0; i < 17; ++i) {
            grid.press(Qt::Key_Down);
            QVERIFY(grid.isInView(grid.current()));
        }
        QCOMPARE(grid.current(), 48);
        grid.press(Qt::Key_Home);
        QVERIFY(grid.isInView(0));
    }

    void shiftExtendsARange()
    {
        GridFixture grid(50);
        grid.click(1);
        grid.press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(grid.selected(), grid.range(1, 4));
        grid.press(Qt::Key_Home, Qt::ShiftModifier);
        QCOMPARE(grid.selected(), grid.range(0, 1));
        grid.press(Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(grid.selected(), grid.range(1, 49));
        grid.press(Qt::Key_Left);
        QCOMPARE(grid.selected(), grid.range(48, 48));
        grid.press(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(grid.selected(), grid.range(45, 48));
    }

    void controlMovesWithoutSelecting()
    {
        GridFixture grid(50);
        grid.press(Qt::Key_Home);
        grid.press(Qt::Key_Right, Qt::ControlModifier);
        grid.press(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(grid.current(), 2);
        QCOMPARE(grid.selected(), grid.range(0, 0));
        grid.press(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(grid.selected(), grid.range(0, 0) + grid.range(2, 2));
        grid.press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(grid.selected(), grid.range(0, 0) + grid.range(2, 5));
        grid.press(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(grid.selected(), grid.range(0, 0) + grid.range(2, 4));
    }

    void announcesOnce()
    {
        GridFixture grid(50);
        int told = 0;
        connect(grid.models.selection(), &ISelectionModel::selectionChanged, this,
                [&told]() { ++told; });
        grid.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(told, 1);
        grid.press(Qt::Key_Right);
        QCOMPARE(told, 2);
        grid.press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(told, 3);
        grid.press(Qt::Key_Home);
        QCOMPARE(told, 4);
        grid.press(Qt::Key_Left);
        grid.press(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(told, 4);
    }

    void currentCardSurvivesTheFilter()
    {
        GridFixture grid(50);
        grid.press(Qt::Key_Home);
        grid.press(Qt::Key_Down);
        QCOMPARE(grid.selected(), grid.range(3, 3));
        grid.models.filter()->setFileType("pes");
        grid.press(Qt::Key_Right);
        QCOMPARE(grid.selected(), grid.range(5, 5));
        grid.models.filter()->setFileType("dst");
        QVERIFY(grid.selected().isEmpty());
        QCOMPARE(grid.current(), -1);
        grid.project->setFiles({});
        grid.press(Qt::Key_Right);
        grid.press(Qt::Key_End);
        grid.press(Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(grid.selected().isEmpty());
    }

    void favoritesByKey()
    {
        GridFixture grid(3);
        grid.press(Qt::Key_F);
        QVERIFY(!grid.project->undoStack()->canUndo());
        grid.files.at(1)->setFavorite(true);
        grid.models.selection()->setSelection(grid.range(0, 1));
        const auto favorites = [&grid]() {
            QByteArray flags;
            for (const QSharedPointer<IFile> &file : grid.files) {
                flags.append(file->isFavorite() ? '*' : '-');
            }
            return flags;
        };
        // A mixed selection becomes one of favourites.
        grid.press(Qt::Key_F);
        QCOMPARE(favorites(), "**-");
        grid.press(Qt::Key_F);
        QCOMPARE(favorites(), "---");
        grid.project->undoStack()->undo();
        QCOMPARE(favorites(), "**-");
    }

    void contextMenuByKey_data()
    {
        const Rows<bool> row("menuKey");
        row("menu key", true);
        row("Shift+F10", false);
    }

    void contextMenuByKey()
    {
        QFETCH(bool, menuKey);
        GridFixture grid(50);
        grid.press(Qt::Key_End);
        grid.view->verticalScrollBar()->setValue(0);
        QRect place;
        QTimer::singleShot(0, this, [&place]() {
            if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
                place = menu->geometry();
                menu->close();
            }
        });
        if (menuKey) {
            // As the platform sends it, with the pointer elsewhere.
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                    grid.view->mapToGlobal(QPoint(5, 5)));
            QCoreApplication::sendEvent(grid.view, &event);
        } else {
            grid.press(Qt::Key_F10, Qt::ShiftModifier);
        }
        QVERIFY(grid.isInView(49));
        QVERIFY(place.intersects(grid.view->screenRectOf(49)));
    }

    void opensTheDesign()
    {
        GridFixture grid(50);
        Files opened;
        connect(grid.browser, &PreviewBrowser::openRequested, this,
                [&opened](const QSharedPointer<IFile> &file) { opened.append(file); });
        grid.press(Qt::Key_Return);
        QVERIFY(opened.isEmpty());
        grid.press(Qt::Key_Home);
        grid.press(Qt::Key_Return);
        // The current card, though another one is selected.
        grid.press(Qt::Key_Right, Qt::ControlModifier);
        grid.press(Qt::Key_Enter, Qt::KeypadModifier);
        QTimer::singleShot(0, this, []() {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QCOMPARE(menu->actions().first()->text(), "Open");
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        grid.press(Qt::Key_Right);
        grid.press(Qt::Key_F10, Qt::ShiftModifier);
        QCOMPARE(opened, grid.range(0, 2));
    }

    void followsTheDesignShown()
    {
        GridFixture grid(50);
        grid.browser->showDesign(grid.files.at(30));
        QCOMPARE(grid.selected(), grid.range(30, 30));
        QCOMPARE(grid.current(), 30);
        QVERIFY(grid.isInView(30));
        // Who has selected several wants to keep them.
        grid.press(Qt::Key_Right, Qt::ShiftModifier);
        grid.browser->showDesign(grid.files.at(2));
        QCOMPARE(grid.current(), 2);
        QVERIFY(grid.isInView(2));
        QCOMPARE(grid.selected(), grid.range(30, 31));
        grid.models.filter()->setFileType("pes");
        const int current = grid.current();
        grid.browser->showDesign(grid.files.at(4));
        QCOMPARE(grid.current(), current);
    }

    void frameShowsTheFocus()
    {
        GridFixture grid(50);
        const auto framed = [&grid](int index) {
            const QImage image = grid.viewport()->grab().toImage();
            const QPoint corner = grid.cardRect(index).topLeft() + QPoint(1, 1);
            return image.pixelColor(corner * image.devicePixelRatio()) ==
                   QColor(WidgetStyles::Primary700);
        };
        grid.edit->setFocus();
        QTest::keyClick(grid.edit, Qt::Key_Tab);
        QVERIFY(grid.view->hasFocus());
        QVERIFY(framed(0));
        QVERIFY(grid.selected().isEmpty());
        grid.press(Qt::Key_Right);
        QVERIFY(!framed(0) && framed(1));
        grid.edit->setFocus();
        QVERIFY(!framed(1));
        grid.view->setFocus();
        QVERIFY(framed(1));
        grid.view->zoomTo(1.5);
        grid.press(Qt::Key_Left);
        QVERIFY(framed(0));
        grid.click(0);
        QVERIFY(!framed(0) && !framed(1));
    }

    void leavesOtherKeysAlone()
    {
        GridFixture grid(3);
        grid.press(Qt::Key_Home);
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_End, Qt::Key_F}) {
            grid.press(key, Qt::AltModifier);
        }
        grid.press(Qt::Key_F, Qt::ControlModifier);
        grid.press(Qt::Key_Return, Qt::AltModifier);
        grid.press(Qt::Key_F10);
        QCOMPARE(grid.selected(), grid.range(0, 0));
        QVERIFY(!grid.files.first()->isFavorite());
    }

    void accessibleCards()
    {
        GridFixture grid(50);
        QAccessibleInterface *list = QAccessible::queryAccessibleInterface(grid.view);
        QVERIFY(list != nullptr);
        QCOMPARE(list->childCount(), 50);
        QVERIFY(list->child(50) == nullptr);

        grid.press(Qt::Key_Home);
        grid.press(Qt::Key_Down);
        grid.press(Qt::Key_F);
        QAccessibleInterface *card = list->focusChild();
        QVERIFY(card != nullptr);
        QCOMPARE(card, list->child(3));
        QCOMPARE(card->parent(), list);
        QCOMPARE(list->indexOfChild(card), 3);
        QCOMPARE(card->text(QAccessible::Name), "03.pes");
        QCOMPARE(card->text(QAccessible::Description), "100mm x 50mm, favorite");
        QVERIFY(card->state().selected && card->state().focused && !card->state().offscreen);
        QVERIFY(!list->child(49)->state().selected && list->child(49)->state().offscreen);
        QCOMPARE(list->childAt(card->rect().center().x(), card->rect().center().y()), card);

        // Nobody has to see a card for it to be read.
        const int cards = grid.scene->items().size();
        QCOMPARE(list->child(49)->text(QAccessible::Description), QStringLiteral("100mm x 50mm"));
        QCOMPARE(grid.scene->items().size(), cards);

        // Qt asks whatever stands at a place that a client names, even where nothing does.
        QAccessibleTableInterface *table = list->tableInterface();
        QVERIFY(table->cellAt(50, 0)->tableCellInterface() != nullptr);
        QVERIFY(!table->cellAt(50, 0)->isValid() && !table->selectRow(50));
        QVERIFY(table->selectRow(40) && table->unselectRow(3));
        QCOMPARE(table->selectedRows(), QList<int>{40});
        QCOMPARE(grid.selected(), grid.range(40, 40));

        // Another file at the same place is another item.
        const QAccessible::Id id = QAccessible::uniqueId(card);
        grid.models.filter()->setFileType("pes");
        QVERIFY(QAccessible::uniqueId(list->child(3)) != id);
        QCOMPARE(list->child(3)->text(QAccessible::Name), "07.pes");
    }

private:
    const PreviewFixture m_fixture;
};

QTEST_MAIN(tst_GridKeyboard)
#include "tst_gridkeyboard.moc"
