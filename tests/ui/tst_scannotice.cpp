#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "ui/NoticeBar.h"
#include "ui/ScanNotice.h"
#include "ui/ScanReportDialog.h"

#include <QtTest>
#include <QtWidgets>

class tst_scannotice : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatWasDone_data()
    {
        const Rows<ScanReport, QString, QStringList> row("report", "text", "buttons");
        row("nothing", {}, "Nothing has changed.", {});
        row("all", fullReport(), "12 new, 3 changed, 1 moved, 2 gone, 1 not readable, 2 left out",
            {"Show"});
        ScanReport stopped;
        stopped.stopped = true;
        row("stopped at once", stopped, "The scan was stopped.", {"Rescan"});
        stopped.added = QStringList{"/d/1.dst", "/d/2.dst"};
        stopped.unreached = QStringList{"/d/2.dst"};
        row("stopped", stopped, "Stopped: 2 new, 1 not read yet", {"Show", "Rescan"});
    }

    void tellsWhatWasDone()
    {
        QFETCH(ScanReport, report);
        QWidget window;
        NoticeBar bar(&window);
        ScanNotice notice(
            &bar, [] {}, &window);
        notice.tell(report);
        QTEST(textOf(bar), "text");
        QTEST(buttonsOf(bar), "buttons");
        notice.withdraw();
        QVERIFY(!bar.isVisible());
    }

    void offersTheRest()
    {
        QWidget window;
        NoticeBar bar(&window);
        int rescans = 0;
        ScanNotice notice(
            &bar, [&] { ++rescans; }, &window);
        ScanReport report;
        report.stopped = true;
        notice.tell(report);
        QTest::mouseClick(bar.findChild<QPushButton *>(), Qt::LeftButton);
        QCOMPARE(rescans, 1);
    }

    void listsEachFile()
    {
        const ScanReportDialog dialog(fullReport(), nullptr);
        const auto *list = dialog.findChild<QTreeWidget *>();
        QStringList sections;
        int files = 0;
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            sections.append(list->topLevelItem(i)->text(0));
            files += list->topLevelItem(i)->childCount();
        }
        QCOMPARE(sections, (QStringList{"Not readable (1)", "Left out (2)", "New (12)",
                                        "Changed (3)", "Moved (1)", "Gone (2)"}));
        QCOMPARE(files, 21);
        QTest::mouseClick(dialog.findChild<QPushButton *>("copy"), Qt::LeftButton);
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY(copied.startsWith("Not readable (1)\n\t/d/<b>.pes\tdamaged\n"));
        QVERIFY(copied.contains("\t/d/m.dst\twas /old/m.dst\n"));
        QVERIFY(copied.contains("\t/d/closed\tPermission denied\n"));
    }

    // A damaged design needs no box: its card tells of it.
    void namesWhatTheDiskDidNotGive()
    {
        QWidget window;
        NoticeBar bar(&window);
        ScanNotice notice(
            &bar, [] {}, &window);
        const MessageBoxes boxes;
        ScanReport report = fullReport();
        notice.tell(report);
        for (int i = 0; i < 12; ++i)
            report.unreadable.append(
                {QStringLiteral("/d/%1.pes").arg(i), "Permission denied", false});
        notice.tell(report);
        QTRY_COMPARE(boxes.count(), 1);
        QCOMPARE(boxes.text(), "12 file(s) could not be read.");
        const QStringList lines = boxes.informativeText().split('\n');
        QCOMPARE(lines.size(), 11);
        QCOMPARE(lines.first(), "/d/0.pes: Permission denied");
        QCOMPARE(lines.last(), "and 2 more");
    }

private:
    static ScanReport fullReport()
    {
        ScanReport report;
        for (int i = 0; i < 12; ++i)
            report.added.append(QStringLiteral("/d/%1.dst").arg(i));
        report.changed = QStringList{"/d/a.dst", "/d/b.dst", "/d/c.dst"};
        report.moved = {{"/old/m.dst", "/d/m.dst"}};
        report.removed = QStringList{"/d/x.dst", "/d/y.dst"};
        report.unreadable = {{"/d/<b>.pes", "damaged", true}};
        report.skipped = {{SkippedEntry::UndecodableName, "/d/caf\uFFFD.pes", {}},
                          {SkippedEntry::UnreadableFolder, "/d/closed", "Permission denied"}};
        return report;
    }

    static QString textOf(const NoticeBar &bar)
    {
        const auto labels = bar.findChildren<QLabel *>();
        return labels.isEmpty() ? QString() : labels.last()->text();
    }
    static QStringList buttonsOf(const NoticeBar &bar)
    {
        QStringList texts;
        const auto buttons = bar.findChildren<QPushButton *>();
        for (const QPushButton *button : buttons)
            texts.append(button->text());
        return texts;
    }
};

QTEST_MAIN(tst_scannotice)
#include "tst_scannotice.moc"
