#include "base/files/FileLock.h"
#include "CliProcess.h"
#include "FakeOrganiser.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include <memory>
#include <QtTest>

class CliEditTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
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

    void cleanup() { m_cli.reset(); }

    void changesDesigns_data()
    {
        const Rows<QList<QStringList>, QByteArray, QByteArray> row("commands", "input", "outcome");
        using Commands = QList<QStringList>;
        row("tag by path", Commands{{"tag", "add", " red ", "d/a.dst", "e/e.dst"}}, {},
            "A red  false\nB   false\nE red  false\n");
        row("tag twice, sorted",
            Commands{{"tag", "add", "red", "d/a.dst"},
                     {"tag", "add", "blue", "d/a.dst"},
                     {"tag", "add", "red", "d/a.dst"}},
            {}, "A blue;red  false\nB   false\nE   false\n");
        row("tag by search, taken away by input",
            Commands{{"tag", "add", "x", "--search", "folder:work/d"}, {"tag", "remove", "x", "-"}},
            "d/b c.dst\n", "A x  false\nB   false\nE   false\n");
        row("names that end with NUL", Commands{{"favorite", "-0", "-"}},
            QByteArray("d/a.dst\0d/b c.dst\0", 18), "A   true\nB   true\nE   false\n");
        row("no names", Commands{{"favorite", "-"}}, {}, "A   false\nB   false\nE   false\n");
        row("star and back",
            Commands{{"favorite", "--search", "type:dst"}, {"favorite", "--remove", "e/e.dst"}}, {},
            "A   true\nB   true\nE   false\n");
        row("note from input", Commands{{"note", "-", "d/a.dst"}}, "N1\n",
            "A  N1 false\nB   false\nE   false\n");
        row("note below, once, and replaced",
            Commands{{"note", "N1", "d/a.dst", "e/e.dst"},
                     {"note", "--append", "N2", "d/a.dst"},
                     {"note", "--append", "N2", "d/a.dst"},
                     {"note", "--replace", "N3", "e/e.dst"}},
            {}, "A  N1\nN2 false\nB   false\nE  N3 false\n");
    }

    void changesDesigns()
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

    void changesAllOrNothing_data()
    {
        const Rows<QStringList, int, QByteArray> row("command", "status", "message");
        row("design that is not there", {"tag", "add", "x", "d/a.dst", "d/none.dst"}, 1,
            "d/none.dst is not in the catalogue");
        row("notes that are there", {"note", "new", "e/e.dst", "d/a.dst"}, 1, "d/a.dst has other");
        // As of a variable that is not set.
        row("empty search", {"tag", "add", "x", "--search", ""}, 2, "No design given");
        row("wrong search", {"favorite", "--search", "tag:"}, 2, "character 1");
        row("verb", {"tag", "ad", "x", "d/a.dst"}, 2, "add");
        row("misspelt verb", {"tag", "remvoe", "x", "d/a.dst"}, 2, "Did you mean 'remove'?");
        row("blank tag", {"tag", "add", " ", "d/a.dst"}, 2, "No tag given");
        row("text and names from input", {"note", "-", "-"}, 2, "Only one thing");
        row("names that end with NUL", {"favorite", "-"}, 2, "-0 reads such names");
        row("folder that is none of ours", {"folders", "remove", "e", "d/sub"}, 1, "none of the");
        row("folder with words", {"folders", "remove", "e", "d"}, 1, "1 design in there has");
    }

    void changesAllOrNothing()
    {
        QFETCH(QStringList, command);
        QFETCH(QByteArray, message);
        QCOMPARE(m_cli->run({"note", "old", "d/a.dst"}).status, 0);
        const QByteArray before = catalogue();
        const auto result = m_cli->run(command, QByteArray("d/a.dst\0e/e.dst\0", 16));
        QTEST(result.status, "status");
        QVERIFY2(result.error.contains(message), result.error);
        QCOMPARE(result.out, QByteArray());
        QCOMPARE(catalogue(), before);
    }

    void takesFoldersOut()
    {
        const QByteArray work = m_cli->workPath().toUtf8();
        QCOMPARE(m_cli->run({"folders"}).out, work + "/d\n" + work + "/e\n");
        QCOMPARE(m_cli->run({"folders", "list", "-0"}).out,
                 work + "/d" + '\0' + work + "/e" + '\0');
        QVERIFY(QFile::rename(m_cli->workPath("e"), m_cli->workPath("away"))); // its drive is gone
        QCOMPARE(m_cli->run({"folders", "remove", "e/"}).status, 0);
        QCOMPARE(shown(), "A   false\nB   false\n");
        QCOMPARE(m_cli->run({"tag", "add", "x", "d/a.dst"}).status, 0);
        QCOMPARE(m_cli->run({"folders", "remove", "--force", "d"}).status, 0);
        QCOMPARE(m_cli->run({"folders"}).out, QByteArray());
        QCOMPARE(m_cli->run({"list", "--count"}).out, "0\n");
        QVERIFY(QFile::exists(m_cli->workPath("d/a.dst")));
    }

    void refusesWhileOthersWrite_data()
    {
        const Rows<QStringList, bool> row("command", "writes");
        row("scan", {"scan", "f"}, true);
        row("rehearsed scan", {"scan", "--dry-run", "f"}, false);
        row("tag", {"tag", "add", "x", "d/a.dst"}, true);
        row("note", {"note", "x", "d/a.dst"}, true);
        row("favourite", {"favorite", "d/a.dst"}, true);
        row("import", {"import", "in.csv"}, true);
        row("folders remove", {"folders", "remove", "d"}, true);
        row("folders", {"folders"}, false);
        row("rehearsed import", {"import", "--dry-run", "in.csv"}, false);
        row("export", {"export"}, false);
        row("thumbnails", {"thumbnails", "t"}, false);
    }

    void refusesWhileOthersWrite()
    {
        QFETCH(QStringList, command);
        QFETCH(bool, writes);
        QVERIFY(QDir(m_cli->workPath()).mkpath("f"));
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

    void worksOnAnotherCatalogue()
    {
        const QString other = m_cli->workPath("copies/mine.xml");
        QVERIFY(QDir(m_cli->workPath()).mkpath("copies"));
        QVERIFY(QFile::copy(m_cli->dataPath("hoopline-organizer.xml"), other));
        const auto access = QFileInfo(m_cli->workPath("copies")).permissions();
        const QByteArray before = catalogue();
        FakeOrganiser organiser; // of the usual catalogue
        QVERIFY(organiser.start());
        QCOMPARE(
            m_cli->run({"tag", "add", "x", "d/a.dst", "--catalogue", "copies/mine.xml"}).status, 0);
        QCOMPARE(m_cli->run({"list", "--tag", "x", "--count", "--catalogue", other}).out, "1\n");
        QCOMPARE(catalogue(), before);
        QCOMPARE(QDir(m_cli->workPath("copies")).entryList(QDir::Files), QStringList("mine.xml"));
        QCOMPARE(QFileInfo(m_cli->workPath("copies")).permissions(), access);

        // By another name it is the organiser's all the same.
        QVERIFY(
            QFile::link(m_cli->dataPath("hoopline-organizer.xml"), m_cli->workPath("link.xml")));
        const QStringList byLink{"tag", "add", "x", "d/a.dst", "--catalogue", "link.xml"};
        QCOMPARE(m_cli->run(byLink).status, 3);
        QCOMPARE(m_cli->run({"list", "--catalogue", "none.xml"}).status, 1);
    }

    void scansAnotherCatalogueWhereNothingElseIs()
    {
        const QStringList scan{"scan", "d", "--catalogue"};
        QCOMPARE(m_cli->run(scan + QStringList{"mine.xml"}).status, 2);
        QCOMPARE(m_cli->run(scan + QStringList{"d/hoopline-organizer.xml"}).status, 2);
        QCOMPARE(
            QDir(m_cli->workPath("d")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size(),
            2);
        const QString fresh = "new/hoopline-organizer.xml";
        QCOMPARE(m_cli->run(scan + QStringList{fresh}).status, 0);
        QCOMPARE(m_cli->run(scan + QStringList{fresh}).lastLine(),
                 "added 0, updated 0, moved 0, removed 0, unreadable 0");
        QCOMPARE(QDir(m_cli->workPath("new/previews")).entryList({"*.png"}).size(), 2);
        QCOMPARE(m_cli->run({"list", "--count", "--catalogue", fresh}).out, "2\n");
    }

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

QTEST_GUILESS_MAIN(CliEditTest)
#include "tst_cli_edit.moc"
