#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "preview/grid/GridEmbroideryItem.h"
#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"
#include "preview/grid/PreviewBrowser.h"
#include "PreviewFixture.h"
#include "widgets/style/WidgetStyles.h"
#include <memory>
#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTimer>
#include <QtTest>
#include <QVBoxLayout>

using Files = QList<QSharedPointer<IFile>>;

/** The grid without a mouse: three columns, two rows and a bit in view. */
class tst_GridKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void movesAndSelects();
    void startsWhereTheUserLooks();
    void staysInView();
    void pagesByRowsInView();
    void shiftExtendsARange();
    void controlMovesWithoutSelecting();
    void clickMovesTheStart();
    void announcesOnce();
    void currentCardSurvivesTheFilter();
    void favoritesByKey();
    void contextMenuByKey_data();
    void contextMenuByKey();
    void frameShowsTheFocus();
    void leavesOtherKeysAlone();
    void accessibleCards();

private:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_view, key, modifiers);
    }
    void click(int index, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, modifiers, cardRect(index).center());
    }
    Files files(int first, int last) const { return m_files.mid(first, last - first + 1); }
    Files selected() const { return m_models->selection()->selectedFiles(); }
    int current() const { return m_scene->currentIndex(); }
    QRect cardRect(int index) const
    {
        return m_view->mapFromScene(m_scene->cardAt(index)->sceneBoundingRect()).boundingRect();
    }
    bool isInView(int index) const { return m_view->viewport()->rect().contains(cardRect(index)); }

    std::unique_ptr<PreviewFixture> m_fixture;
    QSharedPointer<Project> m_project;
    std::unique_ptr<FilterSelectionModel> m_models;
    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_edit = nullptr;
    GridGraphicsView *m_view = nullptr;
    GridPreviewScene *m_scene = nullptr;
    Files m_files;
};

void tst_GridKeyboard::initTestCase()
{
    Q_INIT_RESOURCE(hoopline_resources);
    m_fixture = std::make_unique<PreviewFixture>();
}

void tst_GridKeyboard::init()
{
    GlobalSettings().setGridScaleFactor(100);
    m_project = QSharedPointer<Project>::create();
    m_models = std::make_unique<FilterSelectionModel>(m_project);
    for (int i = 0; i < 50; ++i) {
        m_files.append(PreviewFixture::makeFile(
            m_project.data(),
            QStringLiteral("/designs/%1.%2")
                .arg(i, 2, 10, QLatin1Char('0'))
                .arg(i % 2 == 0 ? QStringLiteral("dst") : QStringLiteral("pes"))));
    }
    m_project->setFiles(m_files);

    m_window = std::make_unique<QWidget>();
    m_edit = new QLineEdit;
    auto *browser = new PreviewBrowser(m_window.get(), m_project, m_models.get());
    auto *layout = new QVBoxLayout(m_window.get());
    layout->addWidget(m_edit);
    layout->addWidget(browser);
    m_view = browser->findChild<GridGraphicsView *>();
    m_scene = m_view->gridScene();
    m_window->resize(800, 720);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_view->setFocus();
    m_view->viewport()->repaint();
    QCOMPARE(m_scene->columns(), 3);
}

void tst_GridKeyboard::cleanup()
{
    m_window.reset();
    m_models.reset();
    m_files.clear();
    m_project.reset();
}

void tst_GridKeyboard::movesAndSelects()
{
    press(Qt::Key_Down);
    QCOMPARE(selected(), files(0, 0));
    press(Qt::Key_Down);
    QCOMPARE(selected(), files(3, 3));
    press(Qt::Key_Right);
    QCOMPARE(selected(), files(4, 4));
    press(Qt::Key_End);
    QCOMPARE(selected(), files(49, 49));
    press(Qt::Key_Up, Qt::KeypadModifier);
    QCOMPARE(selected(), files(46, 46));
    press(Qt::Key_Home);
    QCOMPARE(selected(), files(0, 0));
    m_view->zoomTo(0.5);
    QVERIFY(m_scene->columns() > 3);
    press(Qt::Key_Down);
    QCOMPARE(current(), m_scene->columns());
}

void tst_GridKeyboard::startsWhereTheUserLooks()
{
    m_view->verticalScrollBar()->setValue(1400);
    press(Qt::Key_Right);
    QVERIFY(current() > 6);
    QVERIFY(isInView(current()));
    QCOMPARE(selected(), files(current(), current()));
}

void tst_GridKeyboard::staysInView()
{
    for (int i = 0; i < 17; ++i) {
        press(Qt::Key_Down);
        QVERIFY(isInView(current()));
    }
    QCOMPARE(current(), 48);
    press(Qt::Key_Home);
    QVERIFY(isInView(0));
    QCOMPARE(m_view->verticalScrollBar()->value(), m_view->verticalScrollBar()->minimum());
}

void tst_GridKeyboard::pagesByRowsInView()
{
    const int rows = int(m_view->viewport()->height() / (cardRect(3).top() - cardRect(0).top()));
    QVERIFY(rows >= 2);
    press(Qt::Key_Home);
    press(Qt::Key_PageDown);
    QCOMPARE(current(), 3 * rows);
    press(Qt::Key_PageUp);
    QCOMPARE(current(), 0);
}

void tst_GridKeyboard::shiftExtendsARange()
{
    press(Qt::Key_Home);
    press(Qt::Key_Right);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selected(), files(1, 4));
    press(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(selected(), files(1, 5));
    press(Qt::Key_Home, Qt::ShiftModifier);
    QCOMPARE(selected(), files(0, 1));
    press(Qt::Key_End, Qt::ShiftModifier);
    QCOMPARE(selected(), files(1, 49));
    press(Qt::Key_Left);
    QCOMPARE(selected(), files(48, 48));
}

void tst_GridKeyboard::controlMovesWithoutSelecting()
{
    press(Qt::Key_Home);
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(current(), 2);
    QCOMPARE(selected(), files(0, 0));
    press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(selected(), Files({m_files.at(0), m_files.at(2)}));
    press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(selected(), files(0, 0) + files(2, 5));
    press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(selected(), files(0, 0) + files(2, 4));
}

void tst_GridKeyboard::clickMovesTheStart()
{
    click(4);
    press(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(selected(), files(4, 5));
    click(1, Qt::ShiftModifier);
    QCOMPARE(selected(), files(1, 4));
    click(0, Qt::ControlModifier);
    click(2, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(selected(), files(0, 4));
    QTest::mouseClick(m_view->viewport(), Qt::RightButton, Qt::NoModifier, cardRect(1).center());
    QCOMPARE(selected(), files(0, 4));
}

void tst_GridKeyboard::announcesOnce()
{
    int told = 0;
    connect(m_models->selection(), &ISelectionModel::selectionChanged, this, [&told]() { ++told; });
    press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(told, 1);
    press(Qt::Key_Right);
    QCOMPARE(told, 2);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(told, 3);
    press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(told, 4);
    press(Qt::Key_Home);
    QCOMPARE(told, 5);
    press(Qt::Key_Left);
    press(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(told, 5);
}

void tst_GridKeyboard::currentCardSurvivesTheFilter()
{
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    QCOMPARE(selected(), files(3, 3));
    m_models->filter()->setFileType(QStringLiteral("pes"));
    press(Qt::Key_Right);
    QCOMPARE(selected(), files(5, 5));
    m_models->filter()->setFileType(QStringLiteral("dst"));
    QVERIFY(selected().isEmpty());
    QCOMPARE(current(), -1);
    press(Qt::Key_Right);
    QCOMPARE(selected(), files(0, 0));
    m_project->setFiles({});
    press(Qt::Key_Right);
    press(Qt::Key_End);
    press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(selected().isEmpty());
}

void tst_GridKeyboard::favoritesByKey()
{
    press(Qt::Key_F);
    QVERIFY(!m_project->undoStack()->canUndo());
    m_files.at(1)->setFavorite(true);
    press(Qt::Key_Home);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(!m_files.at(0)->isFavorite());
    // A mixed selection becomes one of favourites.
    press(Qt::Key_F);
    QVERIFY(m_files.at(0)->isFavorite() && m_files.at(1)->isFavorite());
    QVERIFY(!m_files.at(2)->isFavorite());
    press(Qt::Key_F);
    QVERIFY(!m_files.at(0)->isFavorite() && !m_files.at(1)->isFavorite());
    m_project->undoStack()->undo();
    QVERIFY(m_files.at(0)->isFavorite() && m_files.at(1)->isFavorite());
}

void tst_GridKeyboard::contextMenuByKey_data()
{
    QTest::addColumn<bool>("menuKey");
    QTest::newRow("menu key") << true;
    QTest::newRow("Shift+F10") << false;
}

void tst_GridKeyboard::contextMenuByKey()
{
    QFETCH(bool, menuKey);
    press(Qt::Key_End);
    m_view->verticalScrollBar()->setValue(0);
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
                                m_view->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(m_view, &event);
    } else {
        press(Qt::Key_F10, Qt::ShiftModifier);
    }
    QVERIFY(place.isValid());
    QVERIFY(isInView(49));
    QVERIFY(place.intersects(m_view->screenRectOf(49)));
}

void tst_GridKeyboard::frameShowsTheFocus()
{
    const auto framed = [this](int index) {
        const QImage image = m_view->viewport()->grab().toImage();
        const QPoint corner = cardRect(index).topLeft() + QPoint(1, 1);
        return image.pixelColor(corner * image.devicePixelRatio()) ==
               QColor(WidgetStyles::Primary700);
    };
    m_edit->setFocus();
    QTest::keyClick(m_edit, Qt::Key_Tab);
    QVERIFY(m_view->hasFocus());
    QVERIFY(framed(0));
    QVERIFY(selected().isEmpty());
    press(Qt::Key_Right);
    QVERIFY(!framed(0));
    QVERIFY(framed(1));
    m_edit->setFocus();
    QVERIFY(!framed(1));
    m_view->setFocus();
    QVERIFY(framed(1));
    m_view->zoomTo(1.5);
    press(Qt::Key_Left);
    press(Qt::Key_Right);
    QVERIFY(framed(1));
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, cardRect(0).center());
    QVERIFY(!framed(0) && !framed(1));
}

void tst_GridKeyboard::leavesOtherKeysAlone()
{
    press(Qt::Key_Home);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_End, Qt::Key_F}) {
        press(key, Qt::AltModifier);
    }
    press(Qt::Key_Return);
    press(Qt::Key_F10);
    QCOMPARE(current(), 0);
    QCOMPARE(selected(), files(0, 0));
    QVERIFY(!m_files.first()->isFavorite());
}

void tst_GridKeyboard::accessibleCards()
{
    QAccessibleInterface *grid = QAccessible::queryAccessibleInterface(m_view);
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->role(), QAccessible::List);
    QCOMPARE(grid->text(QAccessible::Name), QStringLiteral("Designs"));
    QVERIFY(!grid->text(QAccessible::Description).isEmpty());
    QCOMPARE(grid->childCount(), 50);
    QVERIFY(grid->child(50) == nullptr);

    press(Qt::Key_Home);
    press(Qt::Key_Down);
    press(Qt::Key_F);
    QAccessibleInterface *card = grid->focusChild();
    QVERIFY(card != nullptr);
    QCOMPARE(card, grid->child(3));
    QCOMPARE(card->parent(), grid);
    QCOMPARE(grid->indexOfChild(card), 3);
    QCOMPARE(card->role(), QAccessible::ListItem);
    QCOMPARE(card->text(QAccessible::Name), QStringLiteral("03.pes"));
    QCOMPARE(card->text(QAccessible::Description), QStringLiteral("100mm x 50mm, favorite"));
    QVERIFY(card->state().selected && card->state().focused && !card->state().offscreen);
    QVERIFY(!grid->child(49)->state().selected && grid->child(49)->state().offscreen);
    QCOMPARE(card->rect(), m_view->screenRectOf(3));
    QCOMPARE(grid->childAt(card->rect().center().x(), card->rect().center().y()), card);

    // Another file at the same place is another item.
    const QAccessible::Id id = QAccessible::uniqueId(card);
    m_models->filter()->setFileType(QStringLiteral("pes"));
    QCOMPARE(grid->child(1)->text(QAccessible::Name), QStringLiteral("03.pes"));
    QVERIFY(QAccessible::uniqueId(grid->child(3)) != id);
    QCOMPARE(grid->child(3)->text(QAccessible::Name), QStringLiteral("07.pes"));
}

QTEST_MAIN(tst_GridKeyboard)
#include "tst_gridkeyboard.moc"
