#include "base/GlobalSettings.h"
#include "catalogue/records/IFile.h"
#include "catalogue/sync/ProjectController.h"
#include "CliProcess.h"
#include "support/DstDesign.h"
#include <QDir>
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
    void quotesCsv();
    void printsTable();
    void listsNothingWithoutCatalogue();

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
            file->setTags({"flowers", "red"});
            file->setNotes("two\nlines");
        } else {
            file->setFavorite(file->name() == QLatin1String("Ten"));
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
    QCOMPARE(rose.value("tags").toArray(), (QJsonArray{"flowers", "red"}));
    QCOMPARE(rose.value("notes").toString(), QStringLiteral("two\nlines"));
    QCOMPARE(rose.value("favorite").toBool(true), false);
    QCOMPARE(rose.value("threads").toArray().size(), 2);
}

void CliListTest::quotesCsv()
{
    const auto result = m_cli.run({"list", "--csv", "--tag", "red"});
    QVERIFY(result.out.startsWith("file,name,"));
    QVERIFY2(result.out.contains("/flowers/a,\"\"b\"\".dst\",Rose,"), result.out);
    QVERIFY2(result.out.contains(",\"two\nlines\",flowers;red,false\n"), result.out);
}

void CliListTest::printsTable()
{
    const auto result = m_cli.run({"list", "--favorites"});
    const auto lines = result.out.trimmed().split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.at(1).startsWith("*  " + m_cli.workPath("designs/item10.dst").toUtf8()));
    QCOMPARE(lines.at(2), QByteArray("1 design"));
}

void CliListTest::listsNothingWithoutCatalogue()
{
    const CliProcess fresh;
    const auto result = fresh.run({"list", "--json"});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.out, QByteArray());
    QVERIFY(!QFile::exists(fresh.dataPath("hoopline-organizer.xml")));
}

QTEST_GUILESS_MAIN(CliListTest)
#include "tst_cli_list.moc"
