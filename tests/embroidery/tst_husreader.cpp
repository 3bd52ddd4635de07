#include "embroidery/EmbPattern.h"
#include "embroidery/HusReader.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"
#include "writers/HusCompressor.h"

#include <QtTest>

using namespace TestSupport;
using HusCompressor::compress;

namespace {

const QString endOfFile = QStringLiteral("! Unexpected end of file.");
const QString corrupt = QStringLiteral("! Error decompressing file");

QByteArray compressedFile(int stitchCount, const char *commands, const char *x, const char *y)
{
    return husFile(stitchCount, {3}, compress(hex(commands)), compress(hex(x)), compress(hex(y)));
}

} // namespace

class TestHusReader : public QObject
{
    Q_OBJECT

private slots:
    void stitches_data();
    void stitches();
    void palette();
    void streamOffsets_data();
    void streamOffsets();
    void cutFiles();
    void refusesTooManyStitches();
};

void TestHusReader::stitches_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("points");

    const auto row = [](const char *name, int count, const char *commands, const char *x,
                        const char *y, const char *points) {
        QTest::newRow(name) << count << compressedFile(count, commands, x, y) << points;
    };
    row("commands", 5, "80 81 84 90 42", "01 02 03 ff 80", "01 fe 00 00 80",
        "S1,-1 M3,1 C6,1 E5,1 S-123,129 E-123,129");
    row("count below the streams", 1, "81 81", "01 01", "01 01", "M1,-1 E1,-1");
    row("count above the streams", 3, "81", "01", "02", "M1,-2 S1,-2 S1,-2 E1,-2");
    row("streams of different lengths", 3, "81", "01 01", "00 00 01", "M1,0 S2,0 S2,-1 E2,-1");
    row("no stitches", 0, "", "", "", "E0,0");
    row("negative count", -1, "80", "01", "01", "E0,0");
    row("end goes on", 2, "90 80", "01 01", "00 00", "E1,0 S2,0 E2,0");
}

void TestHusReader::stitches()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, points);
    QCOMPARE(read("hus", file), points);
}

void TestHusReader::palette()
{
    const QByteArray stream = compress(QByteArray());
    const auto pattern = design("hus", husFile(0, {3, 29, 65535}, stream, stream, stream));
    QCOMPARE(threadsText(*pattern), QStringLiteral("#ff0000 Red//Husqvarna/Husqvarna; "
                                                   "#000000 Black//Husqvarna/Husqvarna; "
                                                   "#ffa541 Light Orange//Husqvarna/Husqvarna"));
}

void TestHusReader::streamOffsets_data()
{
    QTest::addColumn<int>("commands");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<QString>("points");

    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    QTest::newRow("sound") << 0 << 0 << 0 << "E0,0";
    // Only the differences count, but for the last stream's.
    QTest::newRow("commands of negative length") << 1000 << 0 << 0 << endOfFile;
    QTest::newRow("x of negative length") << 0 << 1000 << 0 << endOfFile;
    QTest::newRow("y of negative length") << 1000 << 1000 << 1000 << endOfFile;
    QTest::newRow("beyond the end") << -1000 << 0 << 0 << endOfFile;
    QTest::newRow("differences that overflow") << most << least << 0 << endOfFile;
    QTest::newRow("other differences that overflow") << least << most << least << endOfFile;
    QTest::newRow("empty commands") << 7 << 0 << 0 << corrupt;
}

void TestHusReader::streamOffsets()
{
    QFETCH(int, commands);
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(QString, points);
    const QByteArray stream = compress(QByteArray());
    QByteArray file = husFile(0, {}, stream, stream, stream);
    const auto shifted = [&](int index, int by) {
        const int sound = 42 + index * stream.size();
        return le32(qAbs(qint64(by)) > 100000 ? by : sound + by);
    };
    file.replace(20, 12, shifted(0, commands) + shifted(1, x) + shifted(2, y));
    QCOMPARE(stream.size(), 7);
    QCOMPARE(read("hus", file), points);
}

void TestHusReader::cutFiles()
{
    const QByteArray file = compressedFile(2, "80 81", "01 02", "03 04");
    const int lastStream = file.size() - compress(hex("03 04")).size();
    for (int size = 0; size < lastStream; ++size)
        QCOMPARE(read("hus", file.left(size)), endOfFile);
    QCOMPARE(read("hus", file.left(lastStream)), corrupt);
}

void TestHusReader::refusesTooManyStitches()
{
    using Embroidery::HusReader;
    const QString tooMany = QStringLiteral("! Design has too many stitches");
    QCOMPARE(read("hus", compressedFile(2000000000, "80", "01", "01")), tooMany);
    QCOMPARE(read("hus", compressedFile(HusReader::MaximumStitchCount + 1, "80", "01", "01")),
             tooMany);
    const int most = HusReader::MaximumStitchCount;
    QCOMPARE(design("hus", compressedFile(most, "80", "01", "01"))->size(), most + 1);
}

QTEST_APPLESS_MAIN(TestHusReader)
#include "tst_husreader.moc"
