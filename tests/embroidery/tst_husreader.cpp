#include "embroidery/HusReader.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"
#include "support/Rows.h"
#include "writers/HusCompressor.h"

#include <QtTest>

using namespace TestSupport;
using HusCompressor::compress;

const QString endOfFile = "! Unexpected end of file.";
const QString corrupt = "! Error decompressing file";

static QByteArray compressedFile(int stitchCount, const char *commands, const char *x,
                                 const char *y)
{
    return husFile(stitchCount, {3}, compress(hex(commands)), compress(hex(x)), compress(hex(y)));
}

class TestHusReader : public QObject
{
    Q_OBJECT

private slots:
    void stitches_data()
    {
        const Rows<QByteArray, QString> row("file", "points");
        const auto file = &compressedFile;
        row("commands", file(5, "80 81 84 90 42", "01 02 03 ff 80", "01 fe 00 00 80"),
            "S1,-1 M3,1 C6,1 E5,1 S-123,129 E-123,129");
        row("count below the streams", file(1, "81 81", "01 01", "01 01"), "M1,-1 E1,-1");
        row("count above the streams", file(3, "81", "01", "02"), "M1,-2 S1,-2 S1,-2 E1,-2");
        row("streams of different lengths", file(3, "81", "01 01", "00 00 01"),
            "M1,0 S2,0 S2,-1 E2,-1");
        row("no stitches", file(0, "", "", ""), "E0,0");
        row("negative count", file(-1, "80", "01", "01"), "E0,0");
        row("end goes on", file(2, "90 80", "01 01", "00 00"), "E1,0 S2,0 E2,0");
    }

    void stitches()
    {
        QFETCH(QByteArray, file);
        QTEST(read("hus", file), "points");
    }

    void palette()
    {
        const QByteArray stream = compress(QByteArray());
        const auto pattern = design("hus", husFile(0, {3, 29, 65535}, stream, stream, stream));
        QCOMPARE(threadsText(*pattern),
                 QStringLiteral("#ff0000 Red//Husqvarna/Husqvarna; "
                                "#000000 Black//Husqvarna/Husqvarna; "
                                "#ffa541 Light Orange//Husqvarna/Husqvarna"));
    }

    void streamOffsets_data()
    {
        const Rows<int, int, int, QString> row("commands", "x", "y", "points");

        const int least = std::numeric_limits<int>::min();
        const int most = std::numeric_limits<int>::max();
        row("sound", 0, 0, 0, "E0,0");
        // Only the differences count, but for the last stream's.
        row("commands of negative length", 1000, 0, 0, endOfFile);
        row("x of negative length", 0, 1000, 0, endOfFile);
        row("y of negative length", 1000, 1000, 1000, endOfFile);
        row("beyond the end", -1000, 0, 0, endOfFile);
        row("differences that overflow", most, least, 0, endOfFile);
        row("other differences that overflow", least, most, least, endOfFile);
        row("empty commands", 7, 0, 0, corrupt);
    }

    void streamOffsets()
    {
        QFETCH(int, commands);
        QFETCH(int, x);
        QFETCH(int, y);
        const QByteArray stream = compress(QByteArray());
        QByteArray file = husFile(0, {}, stream, stream, stream);
        const auto shifted = [&](int index, int by) {
            const int sound = 42 + index * stream.size();
            return le32(qAbs(qint64(by)) > 100000 ? by : sound + by);
        };
        file.replace(20, 12, shifted(0, commands) + shifted(1, x) + shifted(2, y));
        QCOMPARE(stream.size(), 7);
        QTEST(read("hus", file), "points");
    }

    void cutFiles()
    {
        const QByteArray file = compressedFile(2, "80 81", "01 02", "03 04");
        const int lastStream = file.size() - compress(hex("03 04")).size();
        for (int size = 0; size < lastStream; ++size)
            QCOMPARE(read("hus", file.left(size)), endOfFile);
        QCOMPARE(read("hus", file.left(lastStream)), corrupt);
    }

    void refusesTooManyStitches()
    {
        using Embroidery::HusReader;
        const QString tooMany = "! Design has too many stitches";
        QCOMPARE(read("hus", compressedFile(2000000000, "80", "01", "01")), tooMany);
        QCOMPARE(read("hus", compressedFile(HusReader::MaximumStitchCount + 1, "80", "01", "01")),
                 tooMany);
        const int most = HusReader::MaximumStitchCount;
        QCOMPARE(design("hus", compressedFile(most, "80", "01", "01"))->size(), most + 1);
    }
};

QTEST_APPLESS_MAIN(TestHusReader)
#include "tst_husreader.moc"
