#include "app/application/HooplineApplication.h"
#include "base/GlobalSettings.h"
#include "base/GTranslationLoader.h"
#include "preview/grid/PreviewBrowser.h"
#include "support/DstDesign.h"
#include "support/MessageBoxes.h"
#include "ui/LeftSidebar.h"
#include "ui/MainWindow.h"
#include "ui/panels/TagLabel.h"
#include "ui/panels/TagWidget.h"
#include "ui/RightSidebar.h"

#include <QComboBox>
#include <QGraphicsView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>
#include <QWheelEvent>

/** The commands of the main window by key and menu. */
class tst_commands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void mnemonicsDiffer_data();
    void mnemonicsDiffer();
    void keysDiffer();
    void keysZoom();
    void wheelZoomsWithControl();
    void keyTransfersAndRemoves();
    void letterLeadsToTheTags();
    void keysHidePanels();

private:
    void open();
    void openWithDesigns();
    QList<QMenu *> menus() const;
    QGraphicsView *grid() const { return browser()->findChild<QGraphicsView *>(); }
    PreviewBrowser *browser() const { return m_window->findChild<PreviewBrowser *>(); }

    std::unique_ptr<QTemporaryDir> m_directory;
    QPointer<MainWindow> m_window;
};

void tst_commands::init()
{
    Q_INIT_RESOURCE(translations);
    m_directory = std::make_unique<QTemporaryDir>();
    GSettings().flushSettings({});
    GSettings().setAutoUpdatesEnabled(false);
    GlobalSettings().setApplicationDataPath(m_directory->filePath(QStringLiteral("data")));
    QDir().mkpath(m_directory->filePath(QStringLiteral("data")));
}

void tst_commands::cleanup()
{
    delete m_window;
}

void tst_commands::open()
{
    m_window = new MainWindow;
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

/** The designs stand there from the beginning, so that no progress has taken the focus. */
void tst_commands::openWithDesigns()
{
    const QString path = m_directory->filePath(QStringLiteral("roses"));
    QDir().mkpath(path);
    for (const char *name : {"a", "b"})
        QVERIFY(DstDesign::square(name).writeTo(path + QStringLiteral("/%1.dst").arg(name)));
    open();
    m_window->filesDropped({path});
    delete m_window;
    open();
}

QList<QMenu *> tst_commands::menus() const
{
    return m_window->menuBar()->findChildren<QMenu *>();
}

void tst_commands::mnemonicsDiffer_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"en", "de", "zh-CN"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void tst_commands::mnemonicsDiffer()
{
    QFETCH(QString, language);
    GSettings().setUiLanguage(language);
    GTranslationLoader::instance()->setTranslations(QCoreApplication::instance());
    const auto english = qScopeGuard([] {
        GSettings().setUiLanguage(QStringLiteral("en"));
        GTranslationLoader::instance()->setTranslations(QCoreApplication::instance());
    });
    open();
    QList<QWidget *> places{m_window->menuBar()};
    for (QMenu *menu : menus())
        places.append(menu);
    QVERIFY(places.size() >= 5);
    for (const QWidget *place : qAsConst(places)) {
        QHash<QString, QString> texts;
        for (const QAction *action : place->actions()) {
            const QString key = QKeySequence::mnemonic(action->text()).toString();
            QVERIFY2(key.isEmpty() || !texts.contains(key),
                     qPrintable(action->text() + QStringLiteral(" / ") + texts.value(key)));
            texts.insert(key, action->text());
        }
    }
    delete m_window;
}

void tst_commands::keysDiffer()
{
    open();
    QHash<QString, QString> texts;
    for (const QMenu *menu : menus()) {
        for (const QAction *action : menu->actions()) {
            QStringList keys{action->text().section(QLatin1Char('\t'), 1)};
            for (const QKeySequence &key : action->shortcuts())
                keys.append(key.toString(QKeySequence::NativeText));
            keys.removeAll(QString());
            for (const QString &key : qAsConst(keys)) {
                QVERIFY2(!texts.contains(key), qPrintable(action->text() + texts.value(key)));
                texts.insert(key, action->text());
            }
        }
    }
    for (const char *key :
         {"Ctrl++", "Ctrl+-", "Ctrl+0", "Ctrl+T", "Ctrl+Del", "Ctrl+,", "T", "F", "Space", "Ctrl+D",
          "Ctrl+F", "Ctrl+Shift+O", "Ctrl+Shift+R", "F5", "Ctrl+Q"})
        QVERIFY2(texts.contains(QString::fromLatin1(key)), key);
}

void tst_commands::keysZoom()
{
    openWithDesigns();
    QTest::keyClick(m_window, Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(browser()->zoomPercent(), 150);
    QTest::keyClick(m_window, Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    QCOMPARE(browser()->zoomPercent(), 200);
    QTest::keyClick(m_window, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(browser()->zoomPercent(), 150);
    QTest::keyClick(m_window, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(browser()->zoomPercent(), 100);
    QTest::keyClick(m_window, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(browser()->zoomPercent(), 75);
}

void tst_commands::wheelZoomsWithControl()
{
    openWithDesigns();
    const auto turn = [this](int angle, Qt::KeyboardModifiers modifiers) {
        const QPointF center = grid()->viewport()->rect().center();
        QWheelEvent event(center, grid()->viewport()->mapToGlobal(center.toPoint()), QPoint(),
                          QPoint(0, angle), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(grid()->viewport(), &event);
    };
    turn(120, Qt::NoModifier);
    turn(120, Qt::AltModifier);
    QCOMPARE(browser()->zoomPercent(), 100);
    turn(120, Qt::ControlModifier);
    QCOMPARE(browser()->zoomPercent(), 150);
    // Half a notch there and back, then a whole one in parts.
    turn(60, Qt::ControlModifier);
    turn(-60, Qt::ControlModifier);
    QCOMPARE(browser()->zoomPercent(), 150);
    turn(-60, Qt::ControlModifier);
    QCOMPARE(browser()->zoomPercent(), 100);
}

void tst_commands::keyTransfersAndRemoves()
{
    openWithDesigns();
    MessageBoxes answers;
    QTest::keyClick(m_window, Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(answers.text(), QStringLiteral("No embroidery files selected!"));
    // What a window manager does when a box has closed.
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    answers.press(QMessageBox::No);
    QTest::keyClick(m_window, Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(answers.text(), QStringLiteral("Remove selected folder from list?"));
}

void tst_commands::letterLeadsToTheTags()
{
    openWithDesigns();
    auto *tags = m_window->findChild<TagWidget *>();
    auto *field = tags->findChild<QComboBox *>();
    grid()->setFocus();
    QTest::keySequence(m_window, QKeySequence(QKeySequence::SelectAll));
    QTest::keyClick(m_window, Qt::Key_F9, Qt::ShiftModifier);
    QVERIFY(!tags->isVisible());
    QTest::keyClick(grid(), Qt::Key_T);
    QVERIFY(tags->isVisible());
    QVERIFY(field->hasFocus());
    QTest::keyClicks(field->lineEdit(), QStringLiteral("Tulip"));
    QTest::keyClick(field->lineEdit(), Qt::Key_Return);
    QTRY_COMPARE(tags->findChildren<TagLabel *>().size(), 1);
    auto *chip = tags->findChild<TagLabel *>();
    QCOMPARE(chip->text(), QStringLiteral("Tulip"));
    QTRY_VERIFY(chip->y() > field->mapTo(tags, QPoint()).y());
    // In a text the letter is a letter.
    auto *search = m_window->findChild<QLineEdit *>(QStringLiteral("searchTextLineEdit"));
    QTest::keySequence(m_window, QKeySequence(QKeySequence::Find));
    QVERIFY(search->hasFocus());
    QTest::keyClick(search, Qt::Key_T);
    QCOMPARE(search->text(), QStringLiteral("t"));
    QVERIFY(search->hasFocus());
}

void tst_commands::keysHidePanels()
{
    open();
    const auto isShown = [this](int index) {
        return index == 0 ? m_window->findChild<LeftSidebar *>()->isVisible()
                          : m_window->findChild<RightSidebar *>()->isVisible();
    };
    QVERIFY(isShown(0) && isShown(1));
    QTest::keyClick(m_window, Qt::Key_F9);
    QVERIFY(!isShown(0) && isShown(1));
    QVERIFY(m_window->closeWindow());
    QTRY_VERIFY(!m_window);
    open();
    QVERIFY(!isShown(0) && isShown(1));
    QTest::keyClick(m_window, Qt::Key_F9);
    QVERIFY(isShown(0));
    QVERIFY(m_window->findChild<LeftSidebar *>()->width() > 50);
}

int main(int argc, char **argv)
{
    Q_INIT_RESOURCE(tnw_resources);
    Q_INIT_RESOURCE(hoopline_resources);
    HooplineApplication application(argc, argv);
    // The window of the start is one of the program's own; it is not what is tested.
    QPointer<MainWindow> first;
    HooplineApplication::setWindowFactory([&first] { return first = new MainWindow; });
    GSettings().setAutoUpdatesEnabled(false);
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
    QCoreApplication::processEvents();
    delete first;
    tst_commands test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_commands.moc"
