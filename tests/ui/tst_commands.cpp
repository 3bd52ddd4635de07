#include "MainWindowTest.h"

#include "base/GTranslationLoader.h"
#include "preview/grid/PreviewBrowser.h"
#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "ui/LeftSidebar.h"
#include "ui/panels/TagLabel.h"
#include "ui/panels/TagWidget.h"
#include "ui/RightSidebar.h"

#include <QtTest>
#include <QtWidgets>

/** The commands of the main window by key and menu. */
class tst_commands : public MainWindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        Q_INIT_RESOURCE(translations);
        makeProfile();
    }

    void cleanup() { delete m_window; }

    void mnemonicsDiffer_data()
    {
        const Rows<QString> row("language");
        for (const char *language : {"en", "de", "zh-CN"})
            row(language, QString::fromLatin1(language));
    }

    void mnemonicsDiffer()
    {
        QFETCH(QString, language);
        GSettings().setUiLanguage(language);
        GTranslationLoader::instance()->setTranslations(QCoreApplication::instance());
        const auto english = qScopeGuard([] {
            GSettings().setUiLanguage("en");
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
                         qPrintable(action->text() + " / " + texts.value(key)));
                texts.insert(key, action->text());
            }
        }
        // Where the letter of a menu stands in brackets, no button has it.
        QString tips;
        for (const QToolButton *button : part<QToolBar>()->findChildren<QToolButton *>())
            tips += button->accessibleName() + '|' + button->toolTip() + '|';
        QVERIFY2(!tips.contains(QRegularExpression("\\(\\w\\)|\\.\\.\\.")), qPrintable(tips));
        QVERIFY2(tips.contains("F5"), qPrintable(tips));
        delete m_window;
    }

    void keysDiffer()
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
             {"Ctrl++", "Ctrl+-", "Ctrl+0", "Ctrl+T", "Ctrl+Del", "Ctrl+,", "T", "F", "Space",
              "Ctrl+D", "Ctrl+F", "Ctrl+Shift+O", "Ctrl+Shift+R", "F5", "Ctrl+Q"})
            QVERIFY2(texts.contains(QString::fromLatin1(key)), key);
    }

    void keysZoom()
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

    void wheelZoomsWithControl()
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

    void keyTransfersAndRemoves()
    {
        openWithDesigns();
        MessageBoxes answers;
        QTest::keyClick(m_window, Qt::Key_T, Qt::ControlModifier);
        QCOMPARE(answers.text(), "No embroidery files selected!");
        // What a window manager does when a box has closed.
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        answers.press(QMessageBox::No);
        QTest::keyClick(m_window, Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(answers.text(), "Remove selected folder from list?");
    }

    void letterLeadsToTheTags()
    {
        openWithDesigns();
        auto *tags = part<TagWidget>();
        auto *field = tags->findChild<QComboBox *>();
        grid()->setFocus();
        QTest::keySequence(m_window, QKeySequence(QKeySequence::SelectAll));
        QTest::keyClick(m_window, Qt::Key_F9, Qt::ShiftModifier);
        QVERIFY(!tags->isVisible());
        QTest::keyClick(grid(), Qt::Key_T);
        QVERIFY(tags->isVisible());
        QVERIFY(field->hasFocus());
        QTest::keyClicks(field->lineEdit(), "Tulip");
        QTest::keyClick(field->lineEdit(), Qt::Key_Return);
        QTRY_COMPARE(tags->findChildren<TagLabel *>().size(), 1);
        auto *chip = tags->findChild<TagLabel *>();
        QCOMPARE(chip->text(), "Tulip");
        QTRY_VERIFY(chip->y() > field->mapTo(tags, QPoint()).y());
        // In a text the letter is a letter.
        auto *search = part<QLineEdit>("searchTextLineEdit");
        QTest::keySequence(m_window, QKeySequence(QKeySequence::Find));
        QVERIFY(search->hasFocus());
        QTest::keyClick(search, Qt::Key_T);
        QCOMPARE(search->text(), "t");
        QVERIFY(search->hasFocus());
    }

    void keysHidePanels()
    {
        open();
        const auto isShown = [this](int index) {
            return index == 0 ? part<LeftSidebar>()->isVisible()
                              : part<RightSidebar>()->isVisible();
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
        QVERIFY(part<LeftSidebar>()->width() > 50);
    }

private:
    /** The designs stand there from the beginning, so that no progress has taken the focus. */
    void openWithDesigns()
    {
        const QString folder = makeFolder("roses", {"a.dst", "b.dst"});
        open();
        m_window->filesDropped({folder});
        delete m_window;
        open();
    }

    QList<QMenu *> menus() const { return m_window->menuBar()->findChildren<QMenu *>(); }

    QGraphicsView *grid() const { return browser()->findChild<QGraphicsView *>(); }
    PreviewBrowser *browser() const { return part<PreviewBrowser>(); }
};

int main(int argc, char **argv)
{
    return MainWindowTest::run<tst_commands>(argc, argv);
}

#include "tst_commands.moc"
