#include "support/Widgets.h"
#include "ui/NoticeBar.h"

#include <QtTest>
#include <QtWidgets>

class tst_noticebar : public QObject
{
    Q_OBJECT

private slots:
    void tellsUntilWithdrawn()
    {
        QWidget window;
        NoticeBar bar(&window);
        window.show();
        QVERIFY(!bar.isVisible());
        bar.tell({"save", Notice::Problem, "a <b>disk</b>", {}});
        bar.tell({"scan", Notice::Information, "12 new", {}});
        QCOMPARE(visibleTexts(bar), (QStringList{"a <b>disk</b>", "12 new"}));
        // Only what is no problem can be closed.
        const auto closers = bar.findChildren<QToolButton *>();
        QCOMPARE(closers.size(), 1);
        QTest::mouseClick(closers.first(), Qt::LeftButton);
        QVERIFY(!bar.isTelling("scan"));
        QCOMPARE(visibleTexts(bar), QStringList("a <b>disk</b>"));
        bar.withdraw("save");
        bar.withdraw("never told");
        QVERIFY(!bar.isVisible());
    }

    void sameIdTakesThePlace()
    {
        NoticeBar bar;
        int pressed = 0;
        bar.tell({"save", Notice::Problem, "once", {{"Try again", [&] { pressed = 1; }}}});
        bar.tell({"save", Notice::Problem, "once", {{"Try again", [&] { pressed = 2; }}}});
        bar.tell({"save", Notice::Problem, "twice", {{"Try again", [&] { pressed = 3; }}}});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(visibleTexts(bar), QStringList("twice"));
        const auto buttons = bar.findChildren<QPushButton *>();
        QCOMPARE(buttons.size(), 1);
        QTest::keyClick(buttons.first(), Qt::Key_Return);
        QCOMPARE(pressed, 3);
    }

    // What is tried again every few seconds tells the same each time, while a user is at its
    // buttons.
    void toldAgainItKeepsTheFocus()
    {
        NoticeBar bar;
        int pressed = 0;
        const auto tell = [&](int number) {
            bar.tell({"save", Notice::Problem, "disk", {{"Try again", [&, number] {
                                                             pressed = number;
                                                         }}}});
        };
        tell(1);
        bar.show();
        QVERIFY(QTest::qWaitForWindowActive(&bar));
        auto *button = bar.findChild<QPushButton *>();
        button->setFocus();
        QTest::mousePress(button, Qt::LeftButton);
        tell(2);
        QVERIFY(button->hasFocus());
        QTest::mouseRelease(button, Qt::LeftButton);
        QCOMPARE(pressed, 2);
    }

    void actionMayWithdrawItsOwnNotice()
    {
        NoticeBar bar;
        bar.tell({"save", Notice::Problem, "disk", {{"Try again", [&] { bar.withdraw("save"); }}}});
        QTest::mouseClick(bar.findChild<QPushButton *>(), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!bar.isTelling("save"));
        QVERIFY(!bar.isVisible());
    }
};

QTEST_MAIN(tst_noticebar)
#include "tst_noticebar.moc"
