#include "CliProcess.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include <QImage>
#include <QtTest>

/** What leaves a catalogue, and comes into another one. */
class CliTravelTest : public QObject
{
    Q_OBJECT

private slots:
    void bringsWordsAlong_data()
    {
        const Rows<QStringList> row("form");
        row("CSV", {"export"});
        row("JSON", {"export", "--json"});
        row("list --csv", {"list", "--csv"});
        row("list --json", {"list", "--json"});
    }

    void bringsWordsAlong()
    {
        QFETCH(QStringList, form);
        const CliProcess here;
        const CliProcess there;
        QVERIFY(make(here));
        QVERIFY(make(there, "d/sub/moved.dst"));
        const QString notes = QString::fromUtf8("two\n\"lines\", \302\233 \350\212\261");
        QCOMPARE(here.run({"tag", "add", "a;b,\"c\"", "d/a.dst"}).status, 0);
        QCOMPARE(here.run({"tag", "add", "plain", "d/a.dst"}).status, 0);
        QCOMPARE(here.run({"note", "-", "d/a.dst"}, notes.toUtf8()).status, 0);
        QCOMPARE(here.run({"note", "-", "d/b.dst"}, "of an\rold Mac").status, 0);
        QCOMPARE(here.run({"favorite", "d/b.dst"}).status, 0);
        const QByteArray words = here.run(form).out;

        const QByteArray before = shown(there);
        const auto rehearsal = there.run({"import", "--dry-run", "-"}, words);
        QCOMPARE(rehearsal.out, "update " + there.workPath("d/b.dst").toUtf8() + "\nupdate " +
                                    there.workPath("d/sub/moved.dst").toUtf8() +
                                    "\nwould update 2, unchanged 0, unknown 0\n");
        QCOMPARE(shown(there), before);
        QCOMPARE(there.run({"import", "-"}, words).out, "updated 2, unchanged 0, unknown 0\n");
        QByteArrayList expected = shown(here).split('\n');
        QByteArrayList arrived = shown(there).split('\n');
        std::sort(expected.begin(), expected.end());
        std::sort(arrived.begin(), arrived.end());
        QCOMPARE(arrived, expected);
        QCOMPARE(there.run({"import", "-"}, words).out, "updated 0, unchanged 2, unknown 0\n");
    }

    void addsAndNeverReplaces()
    {
        const CliProcess cli;
        QVERIFY(make(cli));
        for (const char *copy : {"d/copy.dst", "d/sub/copy.dst"})
            QVERIFY(QFile::copy(cli.workPath("d/b.dst"), cli.workPath(copy)));
        QCOMPARE(cli.run({"scan"}).status, 0);
        QCOMPARE(cli.run({"tag", "add", "old", "d/a.dst"}).status, 0);
        QCOMPARE(cli.run({"note", "mine", "d/a.dst"}).status, 0);
        const QByteArray hash =
            cli.run({"list", "--search", "folder:sub", "--format", "{md5}"}).out.trimmed();
        const QByteArray a = cli.workPath("d/a.dst").toUtf8();
        const QByteArray copy = cli.workPath("d/sub/copy.dst").toUtf8();
        const QByteArray words = "\357\273\277notes,tags,favorite,file,md5\r\n"
                                 "theirs,new; newer,,\"" +
                                 a +
                                 "\",00112233445566778899aabbccddeeff\r\n"
                                 "\r\n"
                                 ",,true,/elsewhere/copy.dst," +
                                 hash + "\r\n,there,," + copy + ',' + hash +
                                 "\r\n"
                                 "x,,,/lost.dst,\r\n"
                                 ",red,,," +
                                 hash + "\n";
        const auto result = cli.run({"import", "-"}, words);
        QCOMPARE(result.out, "updated 4, unchanged 0, unknown 1\n");
        QVERIFY2(result.error.contains("/lost.dst is not in the catalogue"), result.error);
        QCOMPARE(shown(cli), "A|new;newer;old|mine\ntheirs|false\nB|red||false\n"
                             "B|red||true\nB|red;there||true\n");
    }

    void tellsWrongEntries_data()
    {
        const Rows<QByteArray, QByteArray> row("words", "message");
        const QByteArray good = R"({"file": "/a.dst", "tags": ["x"]})";
        row("cut JSON", good + "\n{\"file\": \"/b.d", "Entry 2");
        row("tags of numbers", QByteArray(R"([{"file": "/a", "tags": [1]}])"), "'tags'");
        row("star of text", QByteArray(R"({"file": "/a", "favorite": "yes"})"), "'favorite'");
        row("short hash", QByteArray(R"({"md5": "0011"})"), "'md5'");
        row("no design", QByteArray(R"({"tags": ["x"]})"), "neither");
        row("array of texts", QByteArray(R"(["x"])"), "Entry 1");
        row("field too many", "file,tags\n/a,x,y\n", "Entry 1");
        row("field too few", "file,tags\n/a\n", "Entry 1");
        row("open quotation", "file,tags\n/a,\"x\n", "partner");
        row("other columns", "a,b\n1,2\n", "'md5'");
        row("no text", "file\n\377\376\n", "UTF-8");
    }

    void tellsWrongEntries()
    {
        QFETCH(QByteArray, words);
        QFETCH(QByteArray, message);
        const CliProcess cli;
        QVERIFY(make(cli));
        const auto result = cli.run({"import", "-"}, words);
        QCOMPARE(result.status, 1);
        QCOMPARE(result.out, QByteArray());
        QVERIFY2(result.error.contains(message), result.error);
    }

    void exportHarmsNoFile_data()
    {
        const Rows<QString, QStringList, int> row("target", "options", "status");
        row("other file", "mine.csv", {}, 1);
        row("design", "d/a.dst", {"--force"}, 2);
        row("catalogue", "data", {"--force"}, 2);
        row("replaced", "mine.json", {"--force"}, 0);
    }

    void exportHarmsNoFile()
    {
        QFETCH(QString, target);
        QFETCH(QStringList, options);
        QFETCH(int, status);
        const CliProcess cli;
        QVERIFY(make(cli));
        QCOMPARE(cli.run({"favorite", "d/a.dst"}).status, 0);
        const QString path =
            target == "data" ? cli.dataPath("hoopline-organizer.xml") : cli.workPath(target);
        if (target.startsWith("mine"))
            QVERIFY(CatalogueFolder::write(path, "mine"));
        const QByteArray before = CatalogueFolder::read(path);
        QCOMPARE(cli.run(QStringList{"export", path} + options).status, status);
        if (status != 0)
            QCOMPARE(CatalogueFolder::read(path), before);
        else
            QVERIFY(CatalogueFolder::read(path).startsWith("{\"md5\": "));
    }

    void paintsThumbnails()
    {
        const CliProcess cli;
        QVERIFY(make(cli));
        QVERIFY(DstDesign::square("C", 70).writeTo(cli.workPath("d/sub/A.dst")));
        QVERIFY(QFile::copy(cli.workPath("d/b.dst"), cli.workPath("d/sub/b.dst")));
        QVERIFY(CatalogueFolder::write(cli.workPath("d/bad.hus"), "junk"));
        QVERIFY(CatalogueFolder::write(cli.workPath("d/sub/bad.hus"), "junk"));
        QCOMPARE(cli.run({"scan"}).status, 0);
        const auto first = cli.run({"thumbnails", "new/t", "--size", "64"});
        QCOMPARE(first.status, 1);
        QVERIFY2(first.error.contains("d/bad.hus"), first.error);
        QVERIFY2(first.error.contains("d/sub/bad.hus"), first.error);
        QCOMPARE(first.out, "painted 3, kept 1, failed 2\n");
        // Other designs of one name have names of their own; copies share a picture.
        const QDir folder(cli.workPath("new/t"));
        const QStringList pictures = folder.entryList(QDir::Files, QDir::Name);
        QCOMPARE(pictures.size(), 3);
        QCOMPARE(pictures.filter(QRegularExpression("^[aA]\\.dst\\.[0-9a-f]{32}\\.png$")).size(),
                 2);
        QVERIFY(pictures.contains("b.dst.png"));
        QCOMPARE(QImage(folder.filePath("b.dst.png")).width(), 64);
        QCOMPARE(
            cli.run({"thumbnails", "new/t", "-", "--force", "--card"}, "d/a.dst\nd/b.dst\n").out,
            "painted 2, kept 0, failed 0\n");
        QCOMPARE(QImage(folder.filePath("b.dst.png")).pixelColor(0, 0), QColor(Qt::white));
        QVERIFY(QFile::remove(cli.workPath("d/b.dst"))); // its copy is there
        QCOMPARE(cli.run({"thumbnails", "other", "-"}, "d/b.dst\nd/sub/b.dst\n").out,
                 "painted 1, kept 0, failed 1\n");
    }

private:
    /** A catalogue of the designs "A" and "B". */
    static bool make(const CliProcess &cli, const QString &a = "d/a.dst")
    {
        return QDir(cli.workPath()).mkpath("d/sub") &&
               DstDesign::square("A", 50).writeTo(cli.workPath(a)) &&
               DstDesign::square("B", 60).writeTo(cli.workPath("d/b.dst")) &&
               cli.run({"scan", "d"}).status == 0;
    }

    static QByteArray shown(const CliProcess &cli)
    {
        return cli.run({"list", "--format", "{name}|{tags}|{notes}|{favorite}"}).out;
    }
};

QTEST_GUILESS_MAIN(CliTravelTest)
#include "tst_cli_travel.moc"
