#include "base/GlobalSettings.h"
#include "catalogue/records/IFile.h"
#include "catalogue/sync/ProjectController.h"
#include "CliProcess.h"
#include "support/DstDesign.h"
#include "support/Terminal.h"
#include <algorithm>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class CliListTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { GSettings::setIniFile(QString()); }
    void narrowsAsTheGrid_data();
    void narrowsAsTheGrid();
    void tellsAllAboutRecords();
    void tellsWhereTheSearchIsWrong();
    void quotesCsv();
    void printsOwnForms_data();
    void printsOwnForms();
    void printsTable();
    void showsAllToPeople_data();
    void showsAllToPeople();
    void alignsWideCharacters();
    void tellsWhatIsMissing_data();
    void tellsWhatIsMissing();
    void leavesNoTrace();

private:
    CliProcess m_cli;
};

void CliListTest::initTestCase()
{
    QVERIFY(QDir(m_cli.workPath()).mkpath("designs/flowers"));
    QVERIFY(DstDesign::square("Ten", 60).writeTo(m_cli.workPath("designs/item10.dst")));
    QVERIFY(DstDesign::square("Two", 50).writeTo(m_cli.workPath("designs/Item2.DST")));
    QVERIFY(DstDesign::square("Rose", 100).writeTo(m_cli.workPath("designs/flowers/a,\"b\".dst")));
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

void CliListTest::narrowsAsTheGrid_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("all, in natural order") << QStringList{} << QStringList{"Rose", "Two", "Ten"};
    QTest::newRow("folder") << QStringList{"--folder", "designs/flowers/"} << QStringList{"Rose"};
    QTest::newRow("tag") << QStringList{"--tag", "red"} << QStringList{"Rose"};
    QTest::newRow("unknown tag") << QStringList{"--tag", "Red"} << QStringList{};
    QTest::newRow("type") << QStringList{"--type", "DST"} << QStringList{"Rose", "Two", "Ten"};
    QTest::newRow("other type") << QStringList{"--type", "pes"} << QStringList{};
    QTest::newRow("size") << QStringList{"--max-size", "6x6.0"} << QStringList{"Two", "Ten"};
    QTest::newRow("height") << QStringList{"--max-size", "6x5.9"} << QStringList{"Two"};
    QTest::newRow("search") << QStringList{"--search", "ITEM"} << QStringList{"Two", "Ten"};
    QTest::newRow("search notes") << QStringList{"--search", "lines"} << QStringList{"Rose"};
    QTest::newRow("fields") << QStringList{"--search", "tag:RED -name:two width:<=10 lines"}
                            << QStringList{"Rose"};
    QTest::newRow("duplicates") << QStringList{"--search", "is:duplicate"} << QStringList{};
    QTest::newRow("sorted") << QStringList{"--sort", "size:desc"}
                            << QStringList{"Rose", "Ten", "Two"};
    QTest::newRow("favourites") << QStringList{"--favorites"} << QStringList{"Ten"};
    QTest::newRow("together") << QStringList{"--favorites", "--search", "item2"} << QStringList{};
}

void CliListTest::narrowsAsTheGrid()
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

void CliListTest::tellsAllAboutRecords()
{
    const auto result = m_cli.run({"list", "--json", "--tag", "red"});
    const auto rose = QJsonDocument::fromJson(result.out).object();
    QCOMPARE(rose.value("file").toString(), m_cli.workPath("designs/flowers/a,\"b\".dst"));
    QCOMPARE(rose.value("md5").toString().size(), 32);
    QCOMPARE(rose.value("stitch_count").toInt(), 8);
    QCOMPARE(rose.value("width_mm").toDouble(), 10.0);
    QCOMPARE(rose.value("tags").toArray(), (QJsonArray{"flowers", "red", "a;b,\"c\""}));
    QCOMPARE(rose.value("notes").toString(), QStringLiteral("two\nlines"));
    QCOMPARE(rose.value("favorite").toBool(true), false);
    QCOMPARE(rose.value("threads").toArray().size(), 2);
}

void CliListTest::tellsWhereTheSearchIsWrong()
{
    const auto wrong = m_cli.run({"list", "--search", "rose is:fav"});
    QVERIFY2(wrong.error.contains("character 6, 'is:fav': "), wrong.error);
    // What is only likely to be a mistake is searched as text.
    const auto hint = m_cli.run({"list", "--json", "--search", "stiches:<9"});
    QCOMPARE(hint.status, 0);
    QVERIFY2(hint.error.contains("'stitches:'"), hint.error);
}

void CliListTest::quotesCsv()
{
    const auto result = m_cli.run({"list", "--csv", "--tag", "red"});
    QVERIFY(result.out.startsWith("file,name,"));
    QVERIFY2(result.out.contains("/flowers/a,\"\"b\"\".dst\",Rose,"), result.out);
    QVERIFY2(result.out.contains(
                 ",\"two\nlines\",\"flowers;red;\"\"a;b,\"\"\"\"c\"\"\"\"\"\"\",false\n"),
             result.out);
}

void CliListTest::printsOwnForms_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("output");
    const QByteArray rose = m_cli.workPath("designs/flowers/a,\"b\".dst").toUtf8();
    const QByteArray two = m_cli.workPath("designs/Item2.DST").toUtf8();
    QTest::newRow("count") << QStringList{"--count"} << QByteArray("3\n");
    QTest::newRow("count of none") << QStringList{"--count", "--tag", "no"} << QByteArray("0\n");
    QTest::newRow("files") << QStringList{"-0", "--search", "-name:10"} << rose + '\0' + two + '\0';
    QTest::newRow("fields") << QStringList{"--format", "{name}\\t{width_mm}x{height_mm} {{{tags}}",
                                           "--favorites"}
                            << QByteArray("Ten\t6x6 {}\n");
    QTest::newRow("fields with NUL") << QStringList{"--null", "--format", "{stitch_count}\\\\n\\n"}
                                     << QByteArray("8\\n\n\0"
                                                   "8\\n\n\0"
                                                   "8\\n\n\0",
                                                   15);
}

void CliListTest::printsOwnForms()
{
    QFETCH(QStringList, options);
    const auto result = m_cli.run(QStringList{"list"} + options);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.error, QByteArray());
    QTEST(result.out, "output");
}

void CliListTest::printsTable()
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

void CliListTest::showsAllToPeople_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QByteArray>("head");
    QTest::newRow("table") << "--favorites" << QByteArray("   File ");
    QTest::newRow("CSV") << "--csv" << QByteArray("file,name,");
}

void CliListTest::showsAllToPeople()
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

void CliListTest::alignsWideCharacters()
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

void CliListTest::tellsWhatIsMissing_data()
{
    QTest::addColumn<bool>("hasCatalogue");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("catalogue") << false << QStringList{"--json"} << QByteArray("no catalogue");
    QTest::newRow("folder elsewhere")
        << true << QStringList{"--folder", "/nowhere"} << QByteArray("'/nowhere'");
    QTest::newRow("folder that begins alike")
        << true << QStringList{"--folder", "designs/flow"} << QByteArray("designs/flow'");
}

void CliListTest::tellsWhatIsMissing()
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

void CliListTest::leavesNoTrace()
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

QTEST_GUILESS_MAIN(CliListTest)
#include "tst_cli_list.moc"
