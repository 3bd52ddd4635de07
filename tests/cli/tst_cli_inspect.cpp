#include "CliProcess.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include <algorithm>
#include <QImage>
#include <QtTest>
#include <unistd.h>

class CliInspectTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(DstDesign::square().writeTo(m_cli.workPath("a.dst"))); }

    void tellsAllAboutDesigns()
    {
        DstDesign design("Rose");
        design.thread("#ff0000", "Red").thread("#00FF00", "Green");
        design.stitch(10, -3).colorChange().stitch(-121, 121).end();
        QVERIFY(design.writeTo(m_cli.workPath("B.DST")));
        const QByteArray about =
            "{\"file\": \"./B.DST\", \"format\": \"dst\", \"md5\": \"" +
            QCryptographicHash::hash(design.bytes(), QCryptographicHash::Md5).toHex() +
            "\", \"stitch_count\": 4, \"thread_count\": 2, \"bounds\": [-111, -3, 10, 118], "
            "\"width_mm\": 12.1, \"height_mm\": 12.1, \"metadata\": {\"name\": \"Rose\"}, "
            "\"threads\": [{\"color\": \"#ff0000\", \"description\": \"Red\", "
            "\"catalog_number\": \"1\", \"brand\": \"\", \"chart\": \"\"}, "
            "{\"color\": \"#00ff00\", \"description\": \"Green\", "
            "\"catalog_number\": \"1\", \"brand\": \"\", \"chart\": \"\"}]";
        QCOMPARE(m_cli.run({"inspect", "--json", "./B.DST"}).out, about + "}\n");
        QCOMPARE(m_cli.run({"inspect", "--points", "./B.DST", "--json"}).out,
                 about +
                     ", \"points\": [[10, -3, 0], [10, -3, 5], [-111, 118, 0], [-111, 118, 4]]}\n");
    }

    void reportsUnreadableFilesInPlace()
    {
        QVERIFY(QDir(m_cli.workPath()).mkpath("folder.dst"));
        QVERIFY(CatalogueFolder::write(m_cli.workPath("a.foo"), "x"));
        QFile::link("/dev/zero", m_cli.workPath("zero.dst"));
        QVERIFY(CatalogueFolder::write(m_cli.workPath("huge.dst"), "x"));
        QVERIFY(QFile::resize(m_cli.workPath("huge.dst"), qint64(5) << 30)); // sparse
        const auto objects =
            inspect({"gone.dst", "a.dst", "folder.dst", "a.foo", "zero.dst", "huge.dst"}, 1);
        QFile::remove(m_cli.workPath("huge.dst"));
        QStringList errors;
        for (const QJsonObject &object : objects)
            errors.append(
                object.value("error").toString("read: " + object.value("file").toString()));
        QCOMPARE(errors,
                 (QStringList{"Failed to open file: gone.dst", "read: a.dst",
                              "Failed to open file: folder.dst", "No reader for file format:foo",
                              "Not a regular file: zero.dst", "File is too large"}));
    }

    void printsNumbersThatReadBackExactly()
    {
        // All x are negative, so that the right edge keeps its tiny start value.
        DstDesign design("N");
        design.stitch(-7, 3).stitch(-7, 3).end();
        QVERIFY(design.writeTo(m_cli.workPath("n.dst")));
        QVERIFY(DstDesign("Empty").writeTo(m_cli.workPath("empty.dst")));
        const auto objects = inspect({"n.dst", "empty.dst"});
        const auto bounds = objects.value(0).value("bounds").toArray();
        QVERIFY(bounds.at(2).toDouble() == double(1.1754943508222875e-38f));
        QVERIFY(objects.value(0).value("width_mm").toDouble() ==
                (bounds.at(2).toDouble() + 14) / 10);
        QVERIFY(objects.value(1).value("bounds").toArray().at(0).toDouble() ==
                double(3.4028234663852886e+38f));
    }

    void escapesNames()
    {
        const QStringList names{"say \"hi\" \\ there.dst",
                                "line\nfeed\ttab\033[31m.dst",
                                QString::fromUtf8("\302\233K \342\200\256tsd.dst"),
                                ":colon.dst",
                                QString::fromUtf8("\345\210\272\347\273\243 \360\237\214\271.dst"),
                                "--json.dst"};
        for (const QString &name : names)
            QVERIFY(DstDesign::square().writeTo(m_cli.workPath(name)));
        QStringList told;
        for (const QJsonObject &object : inspect(QStringList("--") + names))
            told.append(object.value("file").toString());
        QCOMPARE(told, names);
        const auto result = m_cli.run(QStringList{"inspect", "--json", "--"} + names);
        QVERIFY(!result.out.contains("\302\233") && !result.out.contains("\342\200\256"));
    }

    void printsTable()
    {
        // A picture of one byte a row that is cut off is kept as text of several lines.
        QByteArray pec = QByteArray(42, ' ') + "\x01\x02" + QByteArray(12, ' ') + "\x01\x05\x05";
        pec += QByteArray(463, ' ') + QByteArray("\x18\0\0", 3) + QByteArray(15, ' ');
        pec += QByteArray("\x0A\x05\xFF\0", 4) + "\x80";
        QVERIFY(CatalogueFolder::write(m_cli.workPath("a.pec"), pec));
        const auto lines = m_cli.run({"inspect", "a.pec"}).out.split('\n');
        QCOMPARE(lines.at(0), "a.pec");
        QCOMPARE(lines.at(3), "  Stitches     2");
        const int graphic = lines.indexOf("  pec_graphic_0 ");
        QVERIFY(graphic > 0);
        QCOMPARE(lines.at(graphic + 1), QByteArray(22, ' ') + '#');
        QVERIFY(lines.contains("  Thread 1     #ed171f Red 5 Brother Brother"));
    }

    void keepsHostileTextOffTheTerminal()
    {
        QVERIFY(DstDesign::square("A\033]0;x\007B").writeTo(m_cli.workPath("esc\033[2J.dst")));
        const auto result =
            m_cli.run({"inspect", "esc\033[2J.dst", "gone\033[2J.dst", "esc\033[2J.dst"});
        QCOMPARE(result.status, 1);
        QVERIFY(result.out.contains("10 mm × 10 mm"));
        QVERIFY(result.error.contains("Failed to open file: "));
        QVERIFY(!(result.out + result.error).contains('\033'));
    }

    void rendersPreview_data()
    {
        const Rows<QStringList, QSize> row("options", "size");
        row("default size", {}, QSize(400, 200));
        row("given size, beside JSON", {"--size=64", "--json"}, QSize(64, 32));
    }

    void rendersPreview()
    {
        QFETCH(QStringList, options);
        DstDesign design("Wide");
        design.stitch(100, 50).stitch(-100, -50).stitch(100, 0);
        QVERIFY(design.writeTo(m_cli.workPath("wide.dst")));
        const auto result = m_cli.run(
            QStringList{"inspect", "--force", "--render", "picture", "wide.dst"} + options);
        QCOMPARE(result.status, 0);
        QImage image(m_cli.workPath("picture"), "PNG");
        QTEST(image.size(), "size");
    }

    void rendersCards_data()
    {
        // width: of the stitches, in tenths of a millimetre
        const Rows<int, int, bool> row("width", "height", "drawn");
        row("ordinary", 100, 60, true);
        row("a line without height", 100, 0, true);
        row("upright", 0, 100, true);
        row("empty", 0, 0, false);
    }

    void rendersCards()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(bool, drawn);
        constexpr int side = 110;
        DstDesign design;
        if (drawn)
            design.stitch(width, height).stitch(-width, -height).stitch(width, height);
        QVERIFY(design.end().writeTo(m_cli.workPath("d.dst")));
        QFile::remove(m_cli.workPath("card.png"));
        const auto result =
            m_cli.run({"inspect", "--card", "--render", "card.png", "--size", "110", "d.dst"});
        QCOMPARE(result.status, drawn ? 0 : 1);
        const QImage card(m_cli.workPath("card.png"));
        QCOMPARE(card.isNull(), !drawn);
        QRect marked;
        for (int y = 0; y < card.height(); ++y) {
            for (int x = 0; x < card.width(); ++x) {
                if (card.pixel(x, y) != qRgb(255, 255, 255))
                    marked |= QRect(x, y, 1, 1);
            }
        }
        if (drawn) {
            QCOMPARE(card.size(), QSize(side, side));
            QVERIFY(QRect(4, 4, side - 8, side - 8).contains(marked));
            QVERIFY(std::max(marked.width(), marked.height()) > 90);
        }
    }

    void opensNamesThatAreNoText()
    {
        const QByteArray path = m_cli.workPath("caf").toUtf8() + "\xe9\xc3\xa9.dst";
        QCOMPARE(::link(m_cli.workPath("a.dst").toUtf8().constData(), path.constData()), 0);
        // A shell finds the name, as Qt cannot pass it on.
        QVERIFY(
            CatalogueFolder::write(m_cli.workPath("go"), "exec \"$1\" inspect --json caf*.dst"));
        QProcess process;
        QVERIFY(m_cli.start(process, {"go", CLI_PATH}, "sh"));
        const auto result = CliProcess::finish(process);
        QVERIFY2(result.status == 0, result.error);
        QVERIFY2(result.out.contains("\"md5\": \"") && result.out.contains("\xc3\xa9.dst"),
                 result.out);
    }

    void refusesToHarmFiles_data()
    {
        const Rows<QString, QStringList, int> row("target", "options", "status");
        row("another design", "b.dst", {}, 2);
        row("another design, by force", "b.dst", {"--force"}, 2);
        row("any design's name", "new.PES", {"--force"}, 2);
        row("itself by a link", "link.png", {"--force"}, 2);
        row("itself by another name", "twin.png", {"--force"}, 2);
        row("some file", "notes.txt", {}, 1);
        row("some folder", "folder", {"--force"}, 1);
    }

    void refusesToHarmFiles()
    {
        QFETCH(QString, target);
        QFETCH(QStringList, options);
        QVERIFY(DstDesign::square("B").writeTo(m_cli.workPath("b.dst")));
        QVERIFY(CatalogueFolder::write(m_cli.workPath("notes.txt"), "mine"));
        QFile::link(m_cli.workPath("a.dst"), m_cli.workPath("link.png"));
        ::link(m_cli.workPath("a.dst").toLocal8Bit(), m_cli.workPath("twin.png").toLocal8Bit());
        QDir(m_cli.workPath()).mkpath("folder");
        const QByteArray before = CatalogueFolder::read(m_cli.workPath(target));
        const auto result =
            m_cli.run(QStringList{"inspect", "--render", target, "a.dst"} + options);
        QTEST(result.status, "status");
        QVERIFY2(result.error.contains(target.toUtf8()), result.error);
        QCOMPARE(result.out, QByteArray());
        QCOMPARE(CatalogueFolder::read(m_cli.workPath(target)), before);
    }

    // As a shell makes it of "--render *.dst".
    void forgottenTargetCostsNoDesign()
    {
        QVERIFY(DstDesign::square("B").writeTo(m_cli.workPath("b.dst")));
        const QByteArray before = CatalogueFolder::read(m_cli.workPath("a.dst"));
        QCOMPARE(m_cli.run({"inspect", "--render", "a.dst", "b.dst"}).status, 2);
        QCOMPARE(CatalogueFolder::read(m_cli.workPath("a.dst")), before);
    }

    void replacesByForce()
    {
        QVERIFY(CatalogueFolder::write(m_cli.workPath("old.png"), "old"));
        QCOMPARE(m_cli.run({"inspect", "--force", "--render", "old.png", "a.dst"}).status, 0);
        QVERIFY(!QImage(m_cli.workPath("old.png")).isNull());
    }

    void failsWhenPreviewCannotBeWritten()
    {
        const auto result = m_cli.run({"inspect", "--render", "none/such/o.png", "a.dst"});
        QCOMPARE(result.status, 1);
        QVERIFY(result.error.contains("none/such/o.png"));
        QVERIFY(!QFile::exists(m_cli.workPath("none")));
    }

private:
    /** One object for each line of the output. */
    QList<QJsonObject> inspect(const QStringList &arguments, int status = 0)
    {
        QList<QJsonObject> objects;
        const auto result = m_cli.run(QStringList{"inspect", "--json"} + arguments);
        [&] {
            QCOMPARE(result.status, status);
            QCOMPARE(result.error, QByteArray());
            QVERIFY(result.out.endsWith('\n'));
            const auto lines = result.out.chopped(1).split('\n');
            for (const QByteArray &line : lines) {
                QJsonParseError error;
                objects.append(QJsonDocument::fromJson(line, &error).object());
                QVERIFY2(error.error == QJsonParseError::NoError, line);
            }
        }();
        return objects;
    }

    CliProcess m_cli;
};

QTEST_GUILESS_MAIN(CliInspectTest)
#include "tst_cli_inspect.moc"
