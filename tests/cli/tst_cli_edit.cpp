#include "base/files/FileLock.h"
#include "CliProcess.h"
#include "FakeOrganiser.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include <memory>
#include <QDir>
#include <QtTest>

class CliEditTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_cli.reset(); }
    void changesDesigns_data();
    void changesDesigns();
    void changesAllOrNothing_data();
    void changesAllOrNothing();
    void takesFoldersOut();
    void refusesWhileOthersWrite_data();
    void refusesWhileOthersWrite();
    void worksOnAnotherCatalogue();
    void scansAnotherCatalogueWhereNothingElseIs();

private:
    QByteArray catalogue() const
    {
        return CatalogueFolder::read(m_cli->dataPath("hoopline-organizer.xml"));
    }
    QByteArray shown() const
    {
        return m_cli->run({"list", "--format", "{name} {tags} {notes} {favorite}"}).out;
    }

    std::unique_ptr<CliProcess> m_cli;
};

void CliEditTest::init()
{
    m_cli = std::make_unique<CliProcess>();
    qputenv("TMPDIR", m_cli->temporaryPath().toLocal8Bit());
    QVERIFY(QDir(m_cli->workPath()).mkpath("d"));
    QVERIFY(QDir(m_cli->workPath()).mkpath("e"));
    QVERIFY(DstDesign::square("A", 50).writeTo(m_cli->workPath("d/a.dst")));
    QVERIFY(DstDesign::square("B", 60).writeTo(m_cli->workPath("d/b c.dst")));
    QVERIFY(DstDesign::square("E", 70).writeTo(m_cli->workPath("e/e.dst")));
    QCOMPARE(m_cli->run({"scan", "d", "e"}).status, 0);
}

void CliEditTest::changesDesigns_data()
{
    QTest::addColumn<QList<QStringList>>("commands");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("outcome");
    using Commands = QList<QStringList>;
    QTest::newRow("tag by path") << Commands{{"tag", "add", " red ", "d/a.dst", "e/e.dst"}}
                                 << QByteArray()
                                 << QByteArray("A red  false\nB   false\nE red  false\n");
    QTest::newRow("tag twice, sorted")
        << Commands{{"tag", "add", "red", "d/a.dst"},
                    {"tag", "add", "blue", "d/a.dst"},
                    {"tag", "add", "red", "d/a.dst"}}
        << QByteArray() << QByteArray("A blue;red  false\nB   false\nE   false\n");
    QTest::newRow("tag by search, taken away by input")
        << Commands{{"tag", "add", "x", "--search", "folder:work/d"}, {"tag", "remove", "x", "-"}}
        << QByteArray("d/b c.dst\n") << QByteArray("A x  false\nB   false\nE   false\n");
    QTest::newRow("names that end with NUL")
        << Commands{{"favorite", "-0", "-"}} << QByteArray("d/a.dst\0d/b c.dst\0", 18)
        << QByteArray("A   true\nB   true\nE   false\n");
    QTest::newRow("no names") << Commands{{"favorite", "-"}} << QByteArray()
                              << QByteArray("A   false\nB   false\nE   false\n");
    QTest::newRow("star and back")
        << Commands{{"favorite", "--search", "type:dst"}, {"favorite", "--remove", "e/e.dst"}}
        << QByteArray() << QByteArray("A   true\nB   true\nE   false\n");
    QTest::newRow("note from input") << Commands{{"note", "-", "d/a.dst"}} << QByteArray("N1\n")
                                     << QByteArray("A  N1 false\nB   false\nE   false\n");
    QTest::newRow("note below, once, and replaced")
        << Commands{{"note", "N1", "d/a.dst", "e/e.dst"},
                    {"note", "--append", "N2", "d/a.dst"},
                    {"note", "--append", "N2", "d/a.dst"},
                    {"note", "--replace", "N3", "e/e.dst"}}
        << QByteArray() << QByteArray("A  N1\nN2 false\nB   false\nE  N3 false\n");
}

void CliEditTest::changesDesigns()
{
    QFETCH(QList<QStringList>, commands);
    QFETCH(QByteArray, input);
    for (const QStringList &command : commands) {
        const auto result = m_cli->run(command, input);
        QVERIFY2(result.status == 0, result.error);
        QCOMPARE(result.out, QByteArray());
    }
    QTEST(shown(), "outcome");
}

void CliEditTest::changesAllOrNothing_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("design that is not there")
        << QStringList{"tag", "add", "x", "d/a.dst", "d/none.dst"} << 1
        << QByteArray("d/none.dst is not in the catalogue");
    QTest::newRow("notes that are there")
        << QStringList{"note", "new", "e/e.dst", "d/a.dst"} << 1 << QByteArray("d/a.dst has other");
    // As of a variable that is not set.
    QTest::newRow("empty search") << QStringList{"tag", "add", "x", "--search", ""} << 2
                                  << QByteArray("No design given");
    QTest::newRow("wrong search") << QStringList{"favorite", "--search", "tag:"} << 2
                                  << QByteArray("character 1");
    QTest::newRow("verb") << QStringList{"tag", "ad", "x", "d/a.dst"} << 2 << QByteArray("add");
    QTest::newRow("misspelt verb") << QStringList{"tag", "remvoe", "x", "d/a.dst"} << 2
                                   << QByteArray("Did you mean 'remove'?");
    QTest::newRow("blank tag") << QStringList{"tag", "add", " ", "d/a.dst"} << 2
                               << QByteArray("No tag given");
    QTest::newRow("text and names from input")
        << QStringList{"note", "-", "-"} << 2 << QByteArray("Only one thing");
    QTest::newRow("folder that is none of ours")
        << QStringList{"folders", "remove", "e", "d/sub"} << 1 << QByteArray("none of the");
    QTest::newRow("folder with words")
        << QStringList{"folders", "remove", "e", "d"} << 1 << QByteArray("1 design in there has");
}

void CliEditTest::changesAllOrNothing()
{
    QFETCH(QStringList, command);
    QFETCH(QByteArray, message);
    QCOMPARE(m_cli->run({"note", "old", "d/a.dst"}).status, 0);
    const QByteArray before = catalogue();
    const auto result = m_cli->run(command);
    QTEST(result.status, "status");
    QVERIFY2(result.error.contains(message), result.error);
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(catalogue(), before);
}

void CliEditTest::takesFoldersOut()
{
    const QByteArray work = m_cli->workPath().toUtf8();
    QCOMPARE(m_cli->run({"folders"}).out, work + "/d\n" + work + "/e\n");
    QCOMPARE(m_cli->run({"folders", "list", "-0"}).out, work + "/d" + '\0' + work + "/e" + '\0');
    QVERIFY(QFile::rename(m_cli->workPath("e"), m_cli->workPath("away"))); // its drive is gone
    QCOMPARE(m_cli->run({"folders", "remove", "e/"}).status, 0);
    QCOMPARE(shown(), QByteArray("A   false\nB   false\n"));
    QCOMPARE(m_cli->run({"tag", "add", "x", "d/a.dst"}).status, 0);
    QCOMPARE(m_cli->run({"folders", "remove", "--force", "d"}).status, 0);
    QCOMPARE(m_cli->run({"folders"}).out, QByteArray());
    QCOMPARE(m_cli->run({"list", "--count"}).out, QByteArray("0\n"));
    QVERIFY(QFile::exists(m_cli->workPath("d/a.dst")));
}

void CliEditTest::refusesWhileOthersWrite_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<bool>("writes");
    QTest::newRow("tag") << QStringList{"tag", "add", "x", "d/a.dst"} << true;
    QTest::newRow("note") << QStringList{"note", "x", "d/a.dst"} << true;
    QTest::newRow("favourite") << QStringList{"favorite", "d/a.dst"} << true;
    QTest::newRow("import") << QStringList{"import", "in.csv"} << true;
    QTest::newRow("folders remove") << QStringList{"folders", "remove", "d"} << true;
    QTest::newRow("folders") << QStringList{"folders"} << false;
    QTest::newRow("rehearsed import") << QStringList{"import", "--dry-run", "in.csv"} << false;
    QTest::newRow("export") << QStringList{"export"} << false;
    QTest::newRow("thumbnails") << QStringList{"thumbnails", "t"} << false;
}

void CliEditTest::refusesWhileOthersWrite()
{
    QFETCH(QStringList, command);
    QFETCH(bool, writes);
    QVERIFY(CatalogueFolder::write(m_cli->workPath("in.csv"),
                                   "file,favorite\n" + m_cli->workPath("d/a.dst").toUtf8() +
                                       ",true\n"));
    const QByteArray before = catalogue();
    {
        FakeOrganiser organiser;
        QVERIFY(organiser.start());
        const auto result = m_cli->run(command);
        QCOMPARE(result.status, writes ? 3 : 0);
        QCOMPARE(result.error.contains("Hoopline Organizer is running"), writes);
        QCOMPARE(catalogue(), before);
    }
    {
        FileLock lock(m_cli->dataPath("hoopline-organizer.lock"), "hoopline-cli");
        QCOMPARE(lock.tryLock(), FileLock::Held);
        const auto result = m_cli->run(command);
        QCOMPARE(result.status, writes ? 3 : 0);
        QCOMPARE(result.error.contains("Another hoopline-cli"), writes);
        QCOMPARE(catalogue(), before);
    }
    QCOMPARE(m_cli->run(command).status, 0);
    QCOMPARE(catalogue() != before, writes);
}

void CliEditTest::worksOnAnotherCatalogue()
{
    const QString other = m_cli->workPath("copies/mine.xml");
    QVERIFY(QDir(m_cli->workPath()).mkpath("copies"));
    QVERIFY(QFile::copy(m_cli->dataPath("hoopline-organizer.xml"), other));
    const auto access = QFileInfo(m_cli->workPath("copies")).permissions();
    const QByteArray before = catalogue();
    FakeOrganiser organiser; // of the usual catalogue
    QVERIFY(organiser.start());
    QCOMPARE(m_cli->run({"tag", "add", "x", "d/a.dst", "--catalogue", "copies/mine.xml"}).status,
             0);
    QCOMPARE(m_cli->run({"list", "--tag", "x", "--count", "--catalogue", other}).out,
             QByteArray("1\n"));
    QCOMPARE(catalogue(), before);
    QCOMPARE(QDir(m_cli->workPath("copies")).entryList(QDir::Files), QStringList("mine.xml"));
    QCOMPARE(QFileInfo(m_cli->workPath("copies")).permissions(), access);

    // By another name it is the organiser's all the same.
    QVERIFY(QFile::link(m_cli->dataPath("hoopline-organizer.xml"), m_cli->workPath("link.xml")));
    const QStringList byLink{"tag", "add", "x", "d/a.dst", "--catalogue", "link.xml"};
    QCOMPARE(m_cli->run(byLink).status, 3);
    QCOMPARE(m_cli->run({"list", "--catalogue", "none.xml"}).status, 1);
}

void CliEditTest::scansAnotherCatalogueWhereNothingElseIs()
{
    const QStringList scan{"scan", "d", "--catalogue"};
    QCOMPARE(m_cli->run(scan + QStringList{"mine.xml"}).status, 2);
    QCOMPARE(m_cli->run(scan + QStringList{"d/hoopline-organizer.xml"}).status, 2);
    QCOMPARE(QDir(m_cli->workPath("d")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size(),
             2);
    const QString fresh = "new/hoopline-organizer.xml";
    QCOMPARE(m_cli->run(scan + QStringList{fresh}).status, 0);
    QCOMPARE(m_cli->run(scan + QStringList{fresh}).lastLine(),
             QByteArray("added 0, updated 0, moved 0, removed 0, unreadable 0"));
    QCOMPARE(QDir(m_cli->workPath("new/previews")).entryList({"*.png"}).size(), 2);
    QCOMPARE(m_cli->run({"list", "--count", "--catalogue", fresh}).out, QByteArray("2\n"));
}

QTEST_GUILESS_MAIN(CliEditTest)
#include "tst_cli_edit.moc"
