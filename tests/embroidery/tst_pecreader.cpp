#include "embroidery/EmbPattern.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"

#include <QtTest>

using namespace Embroidery;
using namespace TestSupport;

namespace {

const QString endOfFile = QStringLiteral("! Unexpected end of file.");

} // namespace

class TestPecReader : public QObject
{
    Q_OBJECT

private slots:
    void stitches_data();
    void stitches();
    void colors();
    void label_data();
    void label();
    void labelWithZeroShiftsTheBlock();
    void thumbnails_data();
    void thumbnails();
    void cutFiles();
};

void TestPecReader::stitches_data()
{
    QTest::addColumn<QByteArray>("stitches");
    QTest::addColumn<QString>("points");

    QTest::newRow("end alone") << hex("ff00") << "E0,0";
    QTest::newRow("short deltas") << hex("057b ff00") << "S5,-5 E5,-5";
    QTest::newRow("short limits") << hex("3f40 ff00") << "S63,-64 E63,-64";
    QTest::newRow("long x, jump") << hex("901003 ff00") << "M16,3 E16,3";
    QTest::newRow("long x, trim") << hex("a00102 ff00") << "T0,0 M1,2 E1,2";
    QTest::newRow("long x, neither") << hex("800102 ff00") << "S1,2 E1,2";
    QTest::newRow("long y") << hex("0f8001 ff00") << "S15,1 E15,1";
    QTest::newRow("jump by y alone") << hex("019002 ff00") << "M1,2 E1,2";
    QTest::newRow("trim by y alone") << hex("01a002 ff00") << "T0,0 M1,2 E1,2";
    QTest::newRow("both long") << hex("87ff8800 ff00") << "S2047,-2048 E2047,-2048";
    QTest::newRow("jump wins over trim") << hex("b00102 ff00") << "M1,2 E1,2";
    QTest::newRow("jump of x, trim of y") << hex("9001a002 ff00") << "M1,2 E1,2";
    QTest::newRow("colour change") << hex("0101 feb002 0101 ff00") << "S1,1 C1,1 S2,2 E2,2";
    QTest::newRow("almost a colour change") << hex("feb102 ff00") << "M-335,2 E-335,2";
    QTest::newRow("behind the end") << hex("ff00 0101") << "E0,0";
    QTest::newRow("end is the last byte") << hex("0101 ff") << endOfFile;
    QTest::newRow("no end") << hex("0101") << endOfFile;
    QTest::newRow("cut in a long y") << hex("0180") << endOfFile;
}

void TestPecReader::stitches()
{
    QFETCH(QByteArray, stitches);
    QFETCH(QString, points);
    PecParts parts;
    parts.stitches = stitches;
    // A block length that no seek can fail on.
    parts.length = 0;
    QCOMPARE(read("pec", pecFile(parts)), points);
}

void TestPecReader::colors()
{
    PecParts parts;
    parts.colors = hex("05 ff 41");
    QCOMPARE(
        threadsText(*design("pec", pecFile(parts))),
        QStringLiteral("#ed171f Red/5/Brother/Brother; #f0f970 Lemon Yellow/60/Brother/Brother; "
                       "#000000 Unknown/0/Brother/Brother"));
}

void TestPecReader::label_data()
{
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QString>("metadata");
    QTest::newRow("trimmed") << QByteArray(" LA:Rose       \r") << "name=LA:Rose";
    QTest::newRow("blank") << QByteArray(16, ' ') << "";
    QTest::newRow("UTF-8") << QByteArray("R\xC3\xB6schen        ")
                           << QString::fromUtf8("name=R\xC3\xB6schen");
}

void TestPecReader::label()
{
    QFETCH(QByteArray, label);
    QFETCH(QString, metadata);
    PecParts parts;
    parts.label = label;
    const auto pattern = design("pec", pecFile(parts));
    QCOMPARE(pattern->format(), QStringLiteral("pec"));
    QCOMPARE(metadataText(*pattern), metadata);
}

void TestPecReader::labelWithZeroShiftsTheBlock()
{
    // The text ends at the zero, and what follows is read as if the field had been 5 bytes long.
    PecParts parts;
    parts.label = QByteArray("Rose\0", 5);
    QCOMPARE(read("pec", pecFile(parts)), QStringLiteral("E0,0"));
}

void TestPecReader::thumbnails_data()
{
    QTest::addColumn<int>("images");
    QTest::addColumn<QByteArray>("graphics");
    QTest::addColumn<QString>("metadata");

    const QByteArray whole = hex("01 80 ff 00");
    QTest::newRow("no image expected") << 0 << QByteArray() << "";
    QTest::newRow("whole") << 2 << whole + whole << "";
    QTest::newRow("cut in the first")
        << 2 << whole.left(3) << "pec_graphic_0=#       \n       #########\n        ";
    QTest::newRow("cut in the second keeps the tail of the first")
        << 2 << whole + hex("00") << "pec_graphic_1=        \n       #########\n        ";
    QTest::newRow("ends before the first")
        << 1 << QByteArray() << "pec_graphic_0=        \n                \n        ";
}

void TestPecReader::thumbnails()
{
    QFETCH(int, images);
    QFETCH(QByteArray, graphics);
    QFETCH(QString, metadata);
    PecParts parts;
    parts.label = QByteArray(16, ' ');
    parts.colors = QByteArray(images + 1, '\x01');
    parts.width = 2;
    parts.height = 2;
    parts.graphics = graphics;
    QCOMPARE(metadataText(*design("pec", pecFile(parts))), metadata);
}

void TestPecReader::cutFiles()
{
    PecParts parts;
    const QByteArray file = pecFile(parts);
    for (int size = 0; size < file.size(); ++size) {
        const bool inLabel = size < 27;
        QCOMPARE(read("pec", file.left(size)),
                 inLabel ? QStringLiteral("! Unexpected end of file") : endOfFile);
    }
    parts.length = 23;
    QCOMPARE(read("pec", pecFile(parts)), endOfFile);
}

QTEST_APPLESS_MAIN(TestPecReader)
#include "tst_pecreader.moc"
