#include "support/Rows.h"
#include "ui/ProgressDialog.h"

#include <QtTest>
#include <QtWidgets>

namespace {

/** Counts how often the event loop came round. */
class EventCounter : public QObject
{
public:
    int count = 0;
    void post() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

protected:
    bool event(QEvent *event) override
    {
        count += event->type() == QEvent::User;
        return QObject::event(event);
    }
};

} // namespace

class tst_progressdialog : public QObject
{
    Q_OBJECT

private slots:
    void showsProgress()
    {
        ProgressDialog dialog(nullptr);
        const auto *bar = dialog.findChild<QProgressBar *>();
        const auto *label = dialog.findChild<QLabel *>();
        QCOMPARE(bar->maximum(), 0);
        dialog.setSteps(2);
        dialog.proceed("<b>rose</b>.dst");
        QCOMPARE(label->text(), "<b>rose</b>.dst");
        QCOMPARE(bar->value(), 1);
        dialog.proceed(QString());
        QCOMPARE(label->text(), "<b>rose</b>.dst");
        dialog.proceed(QLatin1String(""));
        QVERIFY(label->text().isEmpty());
        QCOMPARE(bar->value(), 2);
        dialog.proceed(QString());
        QCOMPARE(bar->value(), 2);
        dialog.setSteps(5);
        QCOMPARE(bar->value(), 0);
        QVERIFY(label->text().isEmpty());
    }

    void pumpsEventsAtMostOnceInAHundredMilliseconds()
    {
        ProgressDialog dialog(nullptr);
        EventCounter counter;
        dialog.setSteps(10);
        QElapsedTimer timer;
        timer.start();
        counter.post();
        dialog.proceed(QString());
        QCOMPARE(counter.count, 1);
        counter.post();
        dialog.proceed(QString());
        if (timer.elapsed() < 90)
            QCOMPARE(counter.count, 1);
        QTest::qSleep(110);
        dialog.proceed(QString());
        QCOMPARE(counter.count, 2);
    }

    void comesUpWhenTheWorkLasts()
    {
        ProgressDialog dialog(nullptr);
        dialog.reject();
        dialog.begin();
        QCOMPARE(dialog.abortState(), 0);
        dialog.proceed(QString());
        QVERIFY(!dialog.isVisible());
        dialog.hide();

        dialog.begin();
        QTest::qSleep(ProgressDialog::Patience + 1);
        dialog.proceed(QString());
        QVERIFY(dialog.isVisible());
        dialog.hide();
        dialog.proceed(QString());
        QVERIFY(!dialog.isVisible());
    }

    void everyWayOutOnlyAsksForTheEnd_data()
    {
        const Rows<QString> row("way");
        row("button", "button");
        row("escape", "escape");
        row("close", "close");
    }

    void everyWayOutOnlyAsksForTheEnd()
    {
        QFETCH(QString, way);
        ProgressDialog dialog(nullptr);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        if (way == QLatin1String("button"))
            QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
        else if (way == QLatin1String("escape"))
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            dialog.close();
        QCOMPARE(dialog.abortState(), 2);
        QVERIFY(dialog.isVisible());

        dialog.hide();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.abortState(), 2);
        dialog.show();
        QCOMPARE(dialog.abortState(), 0);
    }
};

QTEST_MAIN(tst_progressdialog)
#include "tst_progressdialog.moc"
