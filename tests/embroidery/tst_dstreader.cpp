#include "embroidery/DstReader.h"
#include "embroidery/support/DesignTable.h"
#include "embroidery/support/PatternText.h"
#include "support/Rows.h"

#include <QtTest>

using namespace Embroidery;
using namespace TestSupport;

class TestDstReader : public QObject
{
    Q_OBJECT

private slots:
    void records_data() { addDesigns("dst"); }

    void records()
    {
        QFETCH(QByteArray, bytes);
        QTEST(read("dst", QByteArray(512, ' ') + bytes), "points");
    }

    void displacements_data()
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

    void displacements()
    {
        QFETCH(QByteArray, b);
        QTEST(DstReader::decodedx(b[0], b[1], b[2]), "dx");
        QTEST(DstReader::decodedy(b[0], b[1], b[2]), "dy");
    }

    void header_data()
    {
        const Rows<QByteArray, QString, QString> row("text", "metadata", "threads");

        row("name", "LA:Rose            \rST:     12\r", "name=Rose", "");
        row("name is cut", "LA:12345678901234567890\r", "name=1234567890123456", "");
        row("name is cut, then trimmed", "LA:123456789012345 7890\n", "name=123456789012345", "");
        row("any separator", "LA=Rose\r\nAU Ann Other \n", "author=Ann Other; name=Rose", "");
        row("case counts", "la:Rose\rAu:Ann\r", "", "");
        row("short lines", "L\rLA\rLA:\rCP:x\r", "", "");
        row("empty name clears", "LA:Rose\rLA:\r", "", "");
        row("ends at zero", QByteArray("AU:Ann\0LA:Rose\r", 16), "author=Ann", "");
        row("threads", "TC:#FF0000,Red,101\rTC:#00ff00,,\r", "", "#ff0000 Red/101//; #00ff00 ///");
        row("wrong number of parts", "TC:#FF0000,Red\rTC:a,b,c,d\rTC:\r", "", "");
        row("named colour", "TC:teal,T,1\r", "", "#008080 T/1//");
        row("invalid colour is black", "TC:#XYZ,T,1\r", "", "#000000 T/1//");
        row("parts keep their blanks", "TC:#FF0000, a , b\r", "", "#ff0000  a / b//");
    }

    void header()
    {
        QFETCH(QByteArray, text);

        const auto pattern = design("dst", text.leftJustified(512, ' '));
        QTEST(metadataText(*pattern), "metadata");
        QTEST(threadsText(*pattern), "threads");
    }

    void shortFiles()
    {
        QCOMPARE(read("dst", QByteArray()), QString());
        QCOMPARE(read("dst", QByteArray(511, ' ')), QString());
        QCOMPARE(design("dst", "LA:Leaf")->getName(), "Leaf");
    }
};

QTEST_APPLESS_MAIN(TestDstReader)
#include "tst_dstreader.moc"
