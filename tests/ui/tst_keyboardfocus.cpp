#include "MainWindowTest.h"

#include "preview/grid/GridPreviewScene.h"
#include "ui/ProgressDialog.h"
#include "widgets/controls/FocusReturn.h"

#include <QGraphicsView>
#include <QLineEdit>
#include <QtTest>

namespace {

constexpr int Rounds = 50;
constexpr int FewRounds = 10;
constexpr int Designs = 40;

/** An active window with a field that has the keyboard. */
class Window : public QMainWindow
{
public:
    Window()
    {
        setCentralWidget(m_edit);
        show();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("the window is not activated");
    }

    QString text() const { return m_edit->text(); }

private:
    QLineEdit *m_edit = new QLineEdit;
};

/** Sooner gone than a window manager can be relied on to have shown it. */
void showForAMoment(ProgressDialog *dialog, int round)
{
    dialog->show();
    QTest::qSleep(1 + round % 10);
    QCoreApplication::processEvents();
    dialog->hide();
}

/**
 * Strikes keys as a keyboard does: they go where the display server has the focus. The hand
 * leaves the window manager a moment, as any hand does.
 */
bool strike(const QStringList &keys)
{
    QProcess xdotool;
    QEventLoop loop;
    // This very program gets the keys meanwhile.
    QObject::connect(&xdotool, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    xdotool.start("xdotool", QStringList{"sleep", "0.02", "key", "--delay", "0"} + keys);
    return xdotool.waitForStarted() && loop.exec() == 0 && xdotool.exitCode() == 0;
}

} // namespace

/** Where the keyboard is after windows came and went, with a real window manager and real keys. */
class tst_keyboardfocus : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        GlobalSettings().setApplicationDataPath(m_directory.filePath("data"));
        QVERIFY(QDir(m_directory.path()).mkpath("data"));
        QVERIFY(QDir(m_directory.path()).mkpath("designs"));
        for (int i = 0; i < Designs; ++i)
            QVERIFY(DstDesign::square(QByteArray::number(i))
                        .writeTo(m_directory.filePath(QStringLiteral("designs/%1.dst").arg(i))));
    }

    void survivesQuickRescans()
    {
        MainWindow window;
        // It is the test that deletes it.
        window.setAttribute(Qt::WA_DeleteOnClose, false);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.filesDropped({m_directory.filePath("designs")});
        auto *view = window.findChild<QGraphicsView *>();
        auto *scene = window.findChild<GridPreviewScene *>();
        view->setFocus();
        for (int round = 0; round < Rounds; ++round) {
            scene->selectNone();
            QVERIFY(strike({"F5", "ctrl+a"}));
            QTRY_COMPARE(scene->selectedFiles().size(), Designs);
        }
    }

    void survivesMomentaryDialogs()
    {
        Window window;
        ProgressDialog dialog(&window);
        for (int round = 1; round <= Rounds; ++round) {
            showForAMoment(&dialog, round);
            QVERIFY(strike({"x"}));
            QTRY_COMPARE(window.text(), QString(round, QLatin1Char('x')));
        }
    }

    // As a transfer does: a dialog that works and closes itself.
    void survivesDialogsThatCloseAfterTheirWork()
    {
        Window window;
        for (int round = 1; round <= FewRounds; ++round) {
            {
                QDialog dialog(&window, Qt::Sheet);
                new FocusReturn(&dialog);
                dialog.open();
                QVERIFY(QTest::qWaitForWindowActive(&dialog));
                {
                    ProgressDialog progress(&dialog);
                    showForAMoment(&progress, round);
                }
                dialog.accept();
            }
            QVERIFY(strike({"x"}));
            QTRY_COMPARE(window.text(), QString(round, QLatin1Char('x')));
            QTRY_COMPARE(QApplication::activeWindow(), &window);
        }
    }

    void keysStruckDuringTheWorkWaitForItsEnd()
    {
        Window window;
        ProgressDialog dialog(&window);
        dialog.begin();
        QProcess::execute("xdotool", {"key", "x"});
        dialog.proceed(QString());
        QVERIFY(window.text().isEmpty());
        dialog.hide();
        QTRY_COMPARE(window.text(), "x");
    }

private:
    QTemporaryDir m_directory;
};

int main(int argc, char **argv)
{
    return MainWindowTest::run<tst_keyboardfocus>(argc, argv);
}

#include "tst_keyboardfocus.moc"
