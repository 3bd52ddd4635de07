#include "support/MessageBoxes.h"
#include "ui/NoticeBar.h"
#include "ui/ScanNotice.h"
#include "ui/ScanReportDialog.h"

#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

class tst_scannotice : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatWasDone_data();
    void tellsWhatWasDone();
    void offersTheRest();
    void listsEachFile();
    void namesWhatTheDiskDidNotGive();

private:
    static ScanReport fullReport();
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

ScanReport tst_scannotice::fullReport()
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

void tst_scannotice::tellsWhatWasDone_data()
{
    QTest::addColumn<ScanReport>("report");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("buttons");
    QTest::newRow("nothing") << ScanReport() << "Nothing has changed." << QStringList();
    QTest::newRow("all") << fullReport()
                         << "12 new, 3 changed, 1 moved, 2 gone, 1 not readable, 2 left out"
                         << QStringList{"Show"};
    ScanReport stopped;
    stopped.stopped = true;
    QTest::newRow("stopped at once") << stopped << "The scan was stopped." << QStringList{"Rescan"};
    stopped.added = QStringList{"/d/1.dst", "/d/2.dst"};
    stopped.unreached = QStringList{"/d/2.dst"};
    QTest::newRow("stopped") << stopped << "Stopped: 2 new, 1 not read yet"
                             << QStringList{"Show", "Rescan"};
}

void tst_scannotice::tellsWhatWasDone()
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

void tst_scannotice::offersTheRest()
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

void tst_scannotice::listsEachFile()
{
    const ScanReportDialog dialog(fullReport(), nullptr);
    const auto *list = dialog.findChild<QTreeWidget *>();
    QStringList sections;
    int files = 0;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        sections.append(list->topLevelItem(i)->text(0));
        files += list->topLevelItem(i)->childCount();
    }
    QCOMPARE(sections, (QStringList{"Not readable (1)", "Left out (2)", "New (12)", "Changed (3)",
                                    "Moved (1)", "Gone (2)"}));
    QCOMPARE(files, 21);
    QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("copy")), Qt::LeftButton);
    const QString copied = QGuiApplication::clipboard()->text();
    QVERIFY(copied.startsWith("Not readable (1)\n\t/d/<b>.pes\tdamaged\n"));
    QVERIFY(copied.contains("\t/d/m.dst\twas /old/m.dst\n"));
    QVERIFY(copied.contains("\t/d/closed\tPermission denied\n"));
}

// A damaged design needs no box: its card tells of it.
void tst_scannotice::namesWhatTheDiskDidNotGive()
{
    QWidget window;
    NoticeBar bar(&window);
    ScanNotice notice(
        &bar, [] {}, &window);
    const MessageBoxes boxes;
    ScanReport report = fullReport();
    notice.tell(report);
    for (int i = 0; i < 12; ++i)
        report.unreadable.append({QStringLiteral("/d/%1.pes").arg(i), "Permission denied", false});
    notice.tell(report);
    QTRY_COMPARE(boxes.count(), 1);
    QCOMPARE(boxes.text(), QStringLiteral("12 file(s) could not be read."));
    const QStringList lines = boxes.informativeText().split('\n');
    QCOMPARE(lines.size(), 11);
    QCOMPARE(lines.first(), QStringLiteral("/d/0.pes: Permission denied"));
    QCOMPARE(lines.last(), QStringLiteral("and 2 more"));
}

QTEST_MAIN(tst_scannotice)
#include "tst_scannotice.moc"
