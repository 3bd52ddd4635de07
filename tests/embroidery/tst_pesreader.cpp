#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"
#include "support/Rows.h"

#include <QtTest>

using namespace Embroidery;
using namespace TestSupport;

static QByteArray text(const QByteArray &bytes)
{
    return QByteArray(1, static_cast<char>(bytes.size())) + bytes;
}

static QByteArray threadRecord(const QByteArray &number, const QByteArray &rgb,
                               const QByteArray &description)
{
    return text(number) + rgb + QByteArray(5, '#') + text(description) + text("Brand") +
           text("Chart");
}

const QByteArray descriptions =
    text("Rose") + text("Flowers") + text("Ann") + text("red") + text("");
const QByteArray counts = QByteArray(6, '\0');
const QByteArray twoThreads = counts + le16(2) + threadRecord("1", hex("ff0000"), "Red") +
                              threadRecord("2", hex("00ff00"), "Green");

/** A file of the magic, the header between offset and block, and the block. */
static QByteArray pesFile(const QByteArray &magic, const QByteArray &header,
                          const QByteArray &colors)
{
    PecParts parts;
    parts.label = QByteArray(16, ' ');
    parts.colors = colors;
    parts.stitches = hex("0101 ff00");
    return magic + le32(12 + header.size()) + header + pecBlock(parts);
}

static QByteArray version5(const QByteArray &threads)
{
    return "1234" + descriptions + QByteArray(24, '#') + text("from.png") + QByteArray(24, '#') +
           threads;
}

static QByteArray version6(const QByteArray &image, const QByteArray &threads)
{
    return "1234" + descriptions + QByteArray(36, '#') + text(image) + QByteArray(24, '#') +
           threads;
}

const QString described = "author=Ann; category=Flowers; keywords=red; name=Rose";

class TestPesReader : public QObject
{
    Q_OBJECT

private slots:
    void headers_data()
    {
        const Rows<QByteArray, QString> row("file", "metadata");

        const QVector<QPair<const char *, const char *>> plain = {
            {"#PES0100", "10"}, {"#PES0090", "9"},   {"#PES0080", "8"}, {"#PES0070", "7"},
            {"#PES0030", "3"},  {"#PES0022", "2.2"}, {"#PES0020", "2"}, {"#PES0001", "1"}};
        for (const auto &magic : plain) {
            row(magic.first, pesFile(magic.first, "anything", "\x05"),
                QStringLiteral("version=") + magic.second);
        }
        row("unknown magic", pesFile("#PES9999", "", "\x05"), "");
        row("4", pesFile("#PES0040", "1234" + descriptions + "more", "\x05"),
            described + "; version=4");
        row("5", pesFile("#PES0050", version5(twoThreads), "\x05"), described + "; version=5");
        row("5.5", pesFile("#PES0055", version5(twoThreads), "\x05"), described + "; version=5.5");
        row("5.6", pesFile("#PES0056", version5(twoThreads), "\x05"), described + "; version=5.6");
        row("6", pesFile("#PES0060", version6("rose.png", twoThreads), "\x05"),
            QString(described).replace("keywords", "image_file=rose.png; keywords") +
                "; version=6");
        row("6 without image", pesFile("#PES0060", version6("", twoThreads), "\x05"),
            described + "; version=6");
    }

    void headers()
    {
        QFETCH(QByteArray, file);
        const auto pattern = design("pes", file);
        QCOMPARE(pattern->format(), "pes");
        QTEST(metadataText(*pattern), "metadata");
        QCOMPARE(pointsText(*pattern), "S1,1 E1,1");
    }

    void threads_data()
    {
        const Rows<QByteArray, QByteArray, QString> row("threads", "colors", "expected");

        const QString red = "#ff0000 Red/1/Brand/Chart";
        const QString green = "#00ff00 Green/2/Brand/Chart";
        const QString pecRed = "#ed171f Red/5/Brother/Brother";
        const QString pecBlack = "#000000 Black/20/Brother/Brother";
        const QString separator = "; ";

        row("as many", twoThreads, hex("1414"), red + separator + green);
        row("one used twice", twoThreads, hex("050705"), red + separator + green + separator + red);
        row("too few", twoThreads, hex("05071405"),
            red + separator + green + separator + pecBlack + separator + red);
        row("too many", twoThreads, hex("05"), red);
        row("none", counts + le16(0), hex("05"), pecRed);
        row("first count", hex("0100"), hex("05"), pecRed);
        row("second count", hex("0000 0100"), hex("05"), pecRed);
        row("third count", hex("0000 0000 0001"), hex("05"), pecRed);
        row("text stops at zero",
            counts + le16(2) + text(QByteArray("1\0", 2)) + hex("ff0000") + QByteArray(5, '#') +
                text("Red") + text("Brand") + text("Chart") +
                threadRecord("2", hex("00ff00"), "Green"),
            hex("1414"), red + separator + green);
    }

    void threads()
    {
        QFETCH(QByteArray, threads);
        QFETCH(QByteArray, colors);
        QFETCH(QString, expected);
        QCOMPARE(threadsText(*design("pes", pesFile("#PES0050", version5(threads), colors))),
                 expected);
        QCOMPARE(threadsText(*design("pes", pesFile("#PES0060", version6("i", threads), colors))),
                 expected);
    }

    void blockOnly()
    {
        PecParts parts;
        parts.stitches = hex("0102 ff00");
        const auto pattern = design("pes", pecFile(parts));
        QCOMPARE(pointsText(*pattern), "S1,2 E1,2");
        QCOMPARE(metadataText(*pattern), "name=LA:Rose");
        QCOMPARE(pattern->format(), "pes");
    }

    void labelWinsOverTheName()
    {
        const QByteArray header = "1234" + descriptions;
        const QByteArray file = "#PES0040" + le32(12 + header.size()) + header + pecBlock({});
        QCOMPARE(design("pes", file)->getName(), "LA:Rose");
    }

    void failures_data()
    {
        const Rows<QByteArray, QString> row("file", "message");

        const QString endOfText = "! Unexpected end of file";
        const QString endOfFile = "! Unexpected end of file.";
        const QByteArray v5 = version5(twoThreads);
        const QByteArray beyond = hex("ffffff7f");
        row("empty", {}, endOfText);
        row("cut magic", "#PES000", endOfText);
        row("no offset", QByteArray("#PES0001\1\0\0", 11), endOfFile);
        row("plain, beyond the end", "#PES0001" + beyond + QByteArray(600, '#'), endOfText);
        row("4, beyond the end", "#PES0040" + beyond + "1234" + descriptions, endOfText);
        row("5, beyond the end", "#PES0050" + beyond + v5, endOfFile);
        row("5, cut in a text", ("#PES0050" + beyond + v5).left(20), endOfText);
        row("5, cut in a colour", "#PES0050" + beyond + version5(counts + le16(1) + hex("00ff")),
            endOfFile);
        // The difference to the offset wraps around and leads beyond the end.
        row("smallest offset", "#PES0001" + hex("00000080") + QByteArray(600, '#'), endOfText);
    }

    void failures()
    {
        QFETCH(QByteArray, file);
        QTEST(read("pes", file), "message");
    }

    void thumbnailsOfVersion6LieEarlier()
    {
        // The header moves the cursor by a seek, which the count of bytes does not follow: 20 bytes
        // between header and block make the thumbnails be looked for 20 bytes too early.
        PecParts parts;
        parts.label = QByteArray(16, ' ');
        parts.colors = hex("0505");
        parts.width = 1;
        parts.height = 21;
        const QByteArray header = version6("", counts + le16(0)) + QByteArray(20, '#');
        const QByteArray file = "#PES0060" + le32(12 + header.size()) + header + pecBlock(parts);
        QVERIFY(!design("pes", file + 'x')->getMetadata().contains("pec_graphic_0"));
        QVERIFY(design("pes", file)->getMetadata().contains("pec_graphic_0"));
    }
};

QTEST_APPLESS_MAIN(TestPesReader)
#include "tst_pesreader.moc"
