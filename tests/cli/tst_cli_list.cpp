#include "base/GlobalSettings.h"
#include "catalogue/records/IFile.h"
#include "catalogue/sync/ProjectController.h"
#include "CliProcess.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include "support/Terminal.h"
#include <algorithm>
#include <QtTest>

static QStringList everythingBelow(const QString &folder)
{
    QStringList all;
    QDirIterator entry(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (entry.hasNext()) {
        const QFileInfo info(entry.next());
        all.append(info.filePath() + ' ' + info.lastModified().toString(Qt::ISODateWithMs));
    }
    all.sort();
    return all;
}

class CliListTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir(m_cli.workPath()).mkpath("designs/flowers"));
        QVERIFY(DstDesign::square("Ten", 60).writeTo(m_cli.workPath("designs/item10.dst")));
        QVERIFY(DstDesign::square("Two", 50).writeTo(m_cli.workPath("designs/Item2.DST")));
        QVERIFY(
            DstDesign::square("Rose", 100).writeTo(m_cli.workPath("designs/flowers/a,\"b\".dst")));
        QCOMPARE(m_cli.run({"scan", "designs"}).status, 0);

        GSettings::setIniFile(m_cli.workPath("settings.ini"));
        GlobalSettings().setApplicationDataPath(m_cli.dataPath());
        ProjectController controller;
        controller.loadProject();
        const auto files = controller.project()->files();
        for (const auto &file : files) {
            if (file->name() == QLatin1String("Rose")) {
                file->setTags({"flowers", "red", "a;b,\"c\""});
                file->setNotes("two\nlines");

            } else {
                file->setFavorite(file->name() == QLatin1String("Ten"));
                file->setNotes(QString::fromUtf8("\302\233K"));
            }
        }
        controller.saveProjectIfModified();
    }

    void cleanupTestCase() { GSettings::setIniFile(QString()); }

    void narrowsAsTheGrid_data()
    {
        const Rows<QStringList, QStringList> row("options", "names");
        row("all, in natural order", {}, {"Rose", "Two", "Ten"});
        row("folder", {"--folder", "designs/flowers/"}, {"Rose"});
        row("tag", {"--tag", "red"}, {"Rose"});
        row("unknown tag", {"--tag", "Red"}, {});
        row("type", {"--type", "DST"}, {"Rose", "Two", "Ten"});
        row("other type", {"--type", "pes"}, {});
        row("size", {"--max-size", "6x6.0"}, {"Two", "Ten"});
        row("height", {"--max-size", "6x5.9"}, {"Two"});
        row("search", {"--search", "ITEM"}, {"Two", "Ten"});
        row("search notes", {"--search", "lines"}, {"Rose"});
        row("fields", {"--search", "tag:RED -name:two width:<=10 lines"}, {"Rose"});
        row("duplicates", {"--search", "is:duplicate"}, {});
        row("sorted", {"--sort", "size:desc"}, {"Rose", "Ten", "Two"});
        row("favourites", {"--favorites"}, {"Ten"});
        row("together", {"--favorites", "--search", "item2"}, {});
    }

    void narrowsAsTheGrid()
    {
        QFETCH(QStringList, options);
        const auto result = m_cli.run(QStringList{"list", "--json"} + options);
        QCOMPARE(result.status, 0);
        QCOMPARE(result.error, QByteArray());
        QStringList names;
        const auto lines = result.out.split('\n');
        for (const QByteArray &line : lines) {
            if (!line.isEmpty())
                names.append(QJsonDocument::fromJson(line).object().value("name").toString());
        }
        QTEST(names, "names");
    }

    void tellsAllAboutRecords()
    {
        const auto result = m_cli.run({"list", "--json", "--tag", "red"});
        const auto rose = QJsonDocument::fromJson(result.out).object();
        QCOMPARE(rose.value("file").toString(), m_cli.workPath("designs/flowers/a,\"b\".dst"));
        QCOMPARE(rose.value("md5").toString().size(), 32);
        QCOMPARE(rose.value("stitch_count").toInt(), 8);
        QCOMPARE(rose.value("width_mm").toDouble(), 10.0);
        QCOMPARE(rose.value("tags").toArray(), (QJsonArray{"flowers", "red", "a;b,\"c\""}));
        QCOMPARE(rose.value("notes").toString(), "two\nlines");
        QCOMPARE(rose.value("favorite").toBool(true), false);
        QCOMPARE(rose.value("threads").toArray().size(), 2);
    }

    void tellsWhereTheSearchIsWrong()
    {
        const auto wrong = m_cli.run({"list", "--search", "rose is:fav"});
        QVERIFY2(wrong.error.contains("character 6, 'is:fav': "), wrong.error);
        // What is only likely to be a mistake is searched as text.
        const auto hint = m_cli.run({"list", "--json", "--search", "stiches:<9"});
        QCOMPARE(hint.status, 0);
        QVERIFY2(hint.error.contains("'stitches:'"), hint.error);
    }

    void quotesCsv()
    {
        const auto result = m_cli.run({"list", "--csv", "--tag", "red"});
        QVERIFY(result.out.startsWith("file,name,"));
        QVERIFY2(result.out.contains("/flowers/a,\"\"b\"\".dst\",Rose,"), result.out);
        QVERIFY2(result.out.contains(
                     ",\"two\nlines\",\"flowers;red;\"\"a;b,\"\"\"\"c\"\"\"\"\"\"\",false\n"),
                 result.out);
    }

    void printsOwnForms_data()
    {
        const Rows<QStringList, QByteArray> row("options", "output");
        const QByteArray rose = m_cli.workPath("designs/flowers/a,\"b\".dst").toUtf8();
        const QByteArray two = m_cli.workPath("designs/Item2.DST").toUtf8();
        row("count", {"--count"}, "3\n");
        row("count of none", {"--count", "--tag", "no"}, "0\n");
        row("files", {"-0", "--search", "-name:10"}, rose + '\0' + two + '\0');
        row("fields", {"--format", "{name}\\t{width_mm}x{height_mm} {{{tags}}", "--favorites"},
            "Ten\t6x6 {}\n");
        row("fields with NUL", {"--null", "--format", "{stitch_count}\\\\n\\n"},
            QByteArray("8\\n\n\0"
                       "8\\n\n\0"
                       "8\\n\n\0",
                       15));
    }

    void printsOwnForms()
    {
        QFETCH(QStringList, options);
        const auto result = m_cli.run(QStringList{"list"} + options);
        QCOMPARE(result.status, 0);
        QCOMPARE(result.error, QByteArray());
        QTEST(result.out, "output");
    }

    void printsTable()
    {
        const auto result = m_cli.run({"list"});
        const auto lines = result.out.split('\n');
        QCOMPARE(lines.size(), 4);
        QVERIFY2(lines.at(2).startsWith("*  " + m_cli.workPath("designs/item10.dst").toUtf8()),
                 lines.at(2));
        QVERIFY2(lines.at(2).contains("  6 mm × 6 mm  "), lines.at(2));
        // A program that reads the lines gets nothing but designs.
        QVERIFY(result.error.startsWith("   File "));
        QVERIFY(result.error.endsWith("\n3 designs\n"));
    }

    void showsAllToPeople_data()
    {
        const Rows<QString, QByteArray> row("form", "head");
        row("table", "--favorites", "   File ");
        row("CSV", "--csv", "file,name,");
    }

    void showsAllToPeople()
    {
        QFETCH(QString, form);
        QFETCH(QByteArray, head);
        const Terminal terminal;
        if (!terminal.isValid())
            QSKIP("there are no pseudo-terminals here");
        QProcess process;
        process.setStandardOutputFile(terminal.name());
        QVERIFY(m_cli.start(process, {"list", form}));
        const auto result = CliProcess::finish(process);
        const QByteArray shown = terminal.read();
        QCOMPARE(result.error, QByteArray());
        QVERIFY2(shown.startsWith(head), shown);
        QVERIFY2(shown.contains("item10"), shown);
        QVERIFY2(!shown.contains("\302\233"), shown);
    }

    void alignsWideCharacters()
    {
        const CliProcess cli;
        const QStringList names{"ab", QString::fromUtf8("\347\216\253\347\221\260"),
                                QString::fromUtf8("u\314\210")}; // two wide; a combining mark
        QDir(cli.workPath()).mkpath("d");
        for (const QString &name : names)
            QVERIFY(DstDesign::square().writeTo(cli.workPath("d/" + name + ".dst")));
        QCOMPARE(cli.run({"scan", "d"}).status, 0);
        QList<int> blanks;
        for (const QString &line : QString::fromUtf8(cli.run({"list"}).out).split('\n')) {
            if (!line.isEmpty())
                blanks.append(line.mid(3).indexOf("10 mm") - line.mid(3).indexOf(".dst") - 4);
        }
        std::sort(blanks.begin(), blanks.end());
        QCOMPARE(blanks, (QList<int>{2, 4, 5}));
    }

    void tellsWhatIsMissing_data()
    {
        const Rows<bool, QStringList, QByteArray> row("hasCatalogue", "options", "message");
        row("catalogue", false, {"--json"}, "no catalogue");
        row("folder elsewhere", true, {"--folder", "/nowhere"}, "'/nowhere'");
        row("folder that begins alike", true, {"--folder", "designs/flow"}, "designs/flow'");
    }

    void tellsWhatIsMissing()
    {
        QFETCH(bool, hasCatalogue);
        QFETCH(QStringList, options);
        QFETCH(QByteArray, message);
        const CliProcess fresh;
        const auto result = (hasCatalogue ? m_cli : fresh).run(QStringList{"list"} + options);
        QCOMPARE(result.status, 1);
        QCOMPARE(result.out, QByteArray());
        QVERIFY2(result.error.contains(message), result.error);
    }

    void leavesNoTrace()
    {
        const CliProcess cli;
        QVERIFY(QDir().mkpath(cli.dataPath()));
        QVERIFY(QFile::copy(m_cli.dataPath("hoopline-organizer.xml"),
                            cli.dataPath("hoopline-organizer.xml")));
        const QString root = QDir::cleanPath(cli.workPath(".."));
        const QStringList before = everythingBelow(root);
        QCOMPARE(cli.run({"list"}).status, 0);
        QCOMPARE(cli.run({"inspect", m_cli.workPath("designs/item10.dst")}).status, 0);
        QCOMPARE(cli.run({"scan", "--dry-run", "--prune"}).status, 0);
        QCOMPARE(everythingBelow(root), before);
    }

private:
    CliProcess m_cli;
};

QTEST_GUILESS_MAIN(CliListTest)
#include "tst_cli_list.moc"
