#include "base/Error.h"
#include "catalogue/backups/BackupFolder.h"
#include "catalogue/backups/BackupRetention.h"
#include "catalogue/backups/BackupSummary.h"
#include "catalogue/backups/GzipFormat.h"
#include "support/Rows.h"

#include <algorithm>
#include <QtTest>

class BackupsTest : public QObject
{
    Q_OBJECT

private slots:
    void knowsItsFiles_data()
    {
        const Rows<bool> row("known");
        row("hoopline-organizer-2026-11-23.xml.gz", true);
        row("hoopline-organizer-2026-11-23-000000.xml.gz", true);
        row("hoopline-organizer-2026-11-23-130049-2.xml.gz", true);
        row("hoopline-organizer-2026-02-30.xml.gz", false);
        row("hoopline-organizer-2026-11-23-250000.xml.gz", false);
        row("hoopline-organizer-2026-11-23.xml", false);
        row("hoopline-organizer-2026-11-23.xml.gz.part", false);
        row("my hoopline-organizer-2026-11-23.xml.gz", false);
    }

    void knowsItsFiles()
    {
        const QString name = QTest::currentDataTag();
        QFETCH(bool, known);
        const auto parsed = BackupName::parse(name);
        QCOMPARE(parsed.has_value(), known);
        if (known)
            QCOMPARE(parsed->toString(), name);
    }

    void keepsForALongTime_data()
    {
        // everyDays: a backup each so many days
        const Rows<int, QStringList> row("everyDays", "kept");

        // 23 November 2026 is a Monday.
        row("daily", 1, {"2026-11-23", "2026-11-22", "2026-11-21", "2026-11-20", "2026-11-19",
                         "2026-11-18", "2026-11-17", "2026-11-15", "2026-11-08", "2026-10-31",
                         "2026-09-30", "2026-08-31", "2026-07-31", "2026-06-30", "2026-05-31",
                         "2026-04-30", "2026-03-31", "2026-02-28", "2026-01-31", "2025-12-31"});
        row("each hundred days", 100,
            {"2026-11-23", "2026-08-15", "2026-05-07", "2026-01-27", "2025-10-19", "2025-07-11",
             "2025-04-02", "2024-12-23", "2024-09-14", "2024-06-06", "2024-02-27", "2023-11-19"});
    }

    void keepsForALongTime()
    {
        QFETCH(int, everyDays);
        const QDate today(2026, 11, 23);
        QVector<BackupName> names;
        // As it goes: each day one more, and those whose time is over go.
        for (QDate day = today.addDays(-15 * everyDays * (everyDays == 1 ? 30 : 1)); day <= today;
             day = day.addDays(everyDays)) {
            names.append(BackupName::ofDay(day));
            const auto outdated = BackupRetention::outdated(names, day);
            for (const BackupName &name : outdated)
                names.removeOne(name);
        }
        QStringList left;
        for (const BackupName &name : qAsConst(names))
            left.prepend(name.date.toString(Qt::ISODate));
        QTEST(left, "kept");
    }

    void momentsAreCounted()
    {
        const QDateTime now(QDate(2026, 11, 23), QTime(12, 0));
        QVector<BackupName> names{BackupName::ofDay(now.date().addDays(1)),
                                  BackupName::ofDay(now.date())};
        for (int i = 0; i < 25; ++i)
            names.append(BackupName::ofMoment(now.addSecs(-i * 60), 1));
        const auto outdated = BackupRetention::outdated(names, now.date());
        QCOMPARE(outdated.size(), 5);
        QCOMPARE(outdated.constFirst(), names.at(names.size() - 5));
    }

    void archiveToolsOpenIt()
    {
        if (QStandardPaths::findExecutable("gzip").isEmpty())
            QSKIP("there is no gzip here");
        const QTemporaryDir folder;
        const QByteArray bytes = QByteArray("<tags/>\n").repeated(5000);
        QFile file(folder.filePath("a.xml.gz"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(GzipFormat::compressed(bytes));
        file.close();
        QVERIFY(file.size() < bytes.size() / 10);
        QProcess gzip;
        gzip.start("gzip", {"-dc", file.fileName()});
        QVERIFY(gzip.waitForFinished());
        QCOMPARE(gzip.readAllStandardOutput(), bytes);

        QFile plain(folder.filePath("b.xml"));
        QVERIFY(plain.open(QIODevice::WriteOnly));
        plain.write(bytes);
        plain.close();
        QCOMPARE(QProcess::execute("gzip", {plain.fileName()}), 0);
        QCOMPARE(BackupFolder::read(plain.fileName() + ".gz"), bytes);
    }

    void damagedIsRefused_data()
    {
        const Rows<QByteArray> row("bytes");

        const QByteArray whole = GzipFormat::compressed(QByteArray(10000, 'x'));
        const auto changed = [&](int at, char c) {
            return QByteArray(whole).replace(at, 1, &c, 1);
        };
        row("cut", whole.left(whole.size() - 9));
        row("head alone", whole.left(10));
        row("checksum", changed(whole.size() - 6, '!'));
        row("larger than it says", changed(whole.size() - 3, 1));
        row("says to be huge", changed(whole.size() - 1, '\x7f'));
    }

    void damagedIsRefused()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY_EXCEPTION_THROWN(GzipFormat::decompressed(bytes), Error);
    }

    void countsDesigns_data()
    {
        const Rows<QByteArray, bool> row("catalogue", "whole");

        const QByteArray whole =
            "<hoopline_organizer version=\"1\"><tags><string>a</string></tags><files>"
            "<file><tags><string>a</string><string>b</string></tags><notes>n</notes></file>"
            "<file><tags/><notes></notes><is_favorite>true</is_favorite></file>"
            "<file><tags><string>a</string></tags><is_favorite>false</is_favorite></file>"
            "</files></hoopline_organizer>\n";
        row("whole", whole, true);
        row("cut", whole.left(whole.size() - 5), false);
        row("something behind", whole + "<more/>", false);
        row("something else", "<html/>", false);
        row("empty", {}, false);
    }

    void countsDesigns()
    {
        QFETCH(QByteArray, catalogue);
        QFETCH(bool, whole);
        const auto summary = BackupSummary::of(catalogue);
        QCOMPARE(summary.has_value(), whole);
        if (whole)
            QCOMPARE(*summary, (BackupSummary{3, 2, 1, 1}));
    }

    void folderKeepsBytes()
    {
        const QTemporaryDir root;
        BackupFolder folder(root.filePath("backups"));
        QVERIFY(folder.entries().isEmpty());
        const QDate today(2026, 11, 23);
        const QDateTime noon(today, QTime(12, 0));
        folder.keepDay("morning", today);
        QVERIFY(folder.hasDay(today));
        QVERIFY(!folder.hasDay(today.addDays(1)));
        const QString one = folder.keepMoment("noon", noon);
        QCOMPARE(folder.keepMoment("noon", noon.addSecs(60)), one);
        const QString two = folder.keepMoment("another in the same second", noon);
        QCOMPARE(BackupFolder::read(one), "noon");
        QCOMPARE(BackupFolder::read(two), "another in the same second");
        QVERIFY(QFile::rename(two, root.filePath("of my own name")));
        QCOMPARE(BackupFolder::read(root.filePath("of my own name")), "another in the same second");
        const auto entries = folder.entries();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries.constFirst().path, one);
        QVERIFY(entries.constLast().name.isOfDay());
    }

    void folderIsForTheUserAlone()
    {
        const QTemporaryDir root;
        BackupFolder folder(root.filePath("backups"));
        folder.keepDay("words", QDate(2026, 11, 23));
        const auto foreign = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                             QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QVERIFY(!(QFile::permissions(folder.path()) & foreign));
        QVERIFY(!(QFile::permissions(folder.entries().constFirst().path) & foreign));
    }
};

QTEST_GUILESS_MAIN(BackupsTest)
#include "tst_backups.moc"
