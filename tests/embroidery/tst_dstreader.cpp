#include "embroidery/DstReader.h"
#include "embroidery/EmbPattern.h"
#include "embroidery/support/PatternText.h"

#include <QtTest>

using namespace Embroidery;
using namespace TestSupport;

class TestDstReader : public QObject
{
    Q_OBJECT

private slots:
    void records_data();
    void records();
    void displacements_data();
    void displacements();
    void header_data();
    void header();
    void shortFiles();
};

void TestDstReader::records_data()
{
    QTest::addColumn<QByteArray>("records");
    QTest::addColumn<QString>("points");

    QTest::newRow("none") << hex("") << "";
    QTest::newRow("stitch") << hex("010003") << "S1,0";
    QTest::newRow("move") << hex("010083") << "M1,0";
    QTest::newRow("end") << hex("0000f3") << "E0,0";
    QTest::newRow("end with displacement") << hex("0101f3") << "E4,0";
    QTest::newRow("colour change") << hex("0100 03 0000c3") << "S1,0 C1,0";
    QTest::newRow("sequins") << hex("000043 010083 010083 000043 010083")
                             << "Q0,0 q1,0 q2,0 Q2,0 M3,0";
    QTest::newRow("flags without the low bits are a stitch") << hex("0100c0") << "S1,0";
    QTest::newRow("end wins over the displacement bits") << hex("0000ff") << "E0,0";
    QTest::newRow("goes on behind the end") << hex("0000f3 010003") << "E0,0 S1,0";
    QTest::newRow("fragment") << hex("010003 0100") << "S1,0";
}

void TestDstReader::records()
{
    QFETCH(QByteArray, records);
    QFETCH(QString, points);
    QCOMPARE(read("dst", QByteArray(512, ' ') + records), points);
}

void TestDstReader::displacements_data()
{
    QTest::addColumn<QByteArray>("b");
    QTest::addColumn<int>("dx");
    QTest::addColumn<int>("dy");

    const auto row = [](const char *axis, int weight, const char *plus, const char *minus) {
        const int x = *axis == 'x' ? weight : 0;
        QTest::addRow("%s+%d", axis, weight) << hex(plus) << x << weight - x;
        QTest::addRow("%s-%d", axis, weight) << hex(minus) << -x << x - weight;
    };
    row("x", 1, "010000", "020000");
    row("x", 3, "000100", "000200");
    row("x", 9, "040000", "080000");
    row("x", 27, "000400", "000800");
    row("x", 81, "000004", "000008");
    row("y", 1, "400000", "800000");
    row("y", 3, "004000", "008000");
    row("y", 9, "100000", "200000");
    row("y", 27, "001000", "002000");
    row("y", 81, "000010", "000020");
    QTest::newRow("largest") << hex("555514") << 121 << 121;
    QTest::newRow("smallest") << hex("aaaa28") << -121 << -121;
    QTest::newRow("both senses cancel") << hex("ffffff") << 0 << 0;
}

void TestDstReader::displacements()
{
    QFETCH(QByteArray, b);
    QFETCH(int, dx);
    QFETCH(int, dy);
    QCOMPARE(DstReader::decodedx(b[0], b[1], b[2]), dx);
    QCOMPARE(DstReader::decodedy(b[0], b[1], b[2]), dy);
}

void TestDstReader::header_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("metadata");
    QTest::addColumn<QString>("threads");

    QTest::newRow("name") << QByteArray("LA:Rose            \rST:     12\r") << "name=Rose"
                          << "";
    QTest::newRow("name is cut") << QByteArray("LA:12345678901234567890\r")
                                 << "name=1234567890123456"
                                 << "";
    QTest::newRow("name is cut, then trimmed")
        << QByteArray("LA:123456789012345 7890\n") << "name=123456789012345"
        << "";
    QTest::newRow("any separator")
        << QByteArray("LA=Rose\r\nAU Ann Other \n") << "author=Ann Other; name=Rose"
        << "";
    QTest::newRow("case counts") << QByteArray("la:Rose\rAu:Ann\r") << ""
                                 << "";
    QTest::newRow("short lines") << QByteArray("L\rLA\rLA:\rCP:x\r") << ""
                                 << "";
    QTest::newRow("empty name clears") << QByteArray("LA:Rose\rLA:\r") << ""
                                       << "";
    QTest::newRow("ends at zero") << QByteArray("AU:Ann\0LA:Rose\r", 16) << "author=Ann"
                                  << "";
    QTest::newRow("threads") << QByteArray("TC:#FF0000,Red,101\rTC:#00ff00,,\r") << ""
                             << "#ff0000 Red/101//; #00ff00 ///";
    QTest::newRow("wrong number of parts") << QByteArray("TC:#FF0000,Red\rTC:a,b,c,d\rTC:\r") << ""
                                           << "";
    QTest::newRow("named colour") << QByteArray("TC:teal,T,1\r") << ""
                                  << "#008080 T/1//";
    QTest::newRow("invalid colour is black") << QByteArray("TC:#XYZ,T,1\r") << ""
                                             << "#000000 T/1//";
    QTest::newRow("parts keep their blanks") << QByteArray("TC:#FF0000, a , b\r") << ""
                                             << "#ff0000  a / b//";
}

void TestDstReader::header()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, metadata);
    QFETCH(QString, threads);

    const auto pattern = design("dst", text.leftJustified(512, ' '));
    QCOMPARE(metadataText(*pattern), metadata);
    QCOMPARE(threadsText(*pattern), threads);
}

void TestDstReader::shortFiles()
{
    QCOMPARE(read("dst", QByteArray()), QString());
    QCOMPARE(read("dst", QByteArray(511, ' ')), QString());
    QCOMPARE(design("dst", "LA:Leaf")->getName(), QStringLiteral("Leaf"));
}

QTEST_APPLESS_MAIN(TestDstReader)
#include "tst_dstreader.moc"
