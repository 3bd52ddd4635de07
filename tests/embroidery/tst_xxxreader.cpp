#include "embroidery/EmbPattern.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"

#include <QtTest>

using namespace TestSupport;

namespace {

const QByteArray close = hex("7f000000");
const QString endOfFile = QStringLiteral("! Unexpected end of file.");

} // namespace

class TestXxxReader : public QObject
{
    Q_OBJECT

private slots:
    void records_data();
    void records();
    void colors();
    void streamWithoutItsEnd();
    void paletteOffset_data();
    void paletteOffset();
    void cutAtEveryByte();
};

void TestXxxReader::records_data()
{
    QTest::addColumn<QByteArray>("records");
    QTest::addColumn<QString>("points");

    QTest::newRow("none") << hex("") << "E0,0";
    QTest::newRow("stitch") << hex("0102 8081") << "S1,-2 S-127,125 E-127,125";
    QTest::newRow("long move") << hex("7d feff 0200") << "M-2,-2 E-2,-2";
    QTest::newRow("other long move") << hex("7e 0080 0080") << "M-32768,32768 E-32768,32768";
    QTest::newRow("colour change") << hex("7f080505") << "C0,0 E0,0";
    QTest::newRow("trim") << hex("7f030000") << "T0,0 E0,0";
    QTest::newRow("move and trim") << hex("7f030101") << "M1,-1 T1,-1 E1,-1";
    QTest::newRow("move") << hex("7f01ff01") << "M-1,-1 E-1,-1";
    QTest::newRow("behind the end") << hex("7f7f0000 0101") << "E0,0";
}

void TestXxxReader::records()
{
    QFETCH(QByteArray, records);
    QFETCH(QString, points);
    QCOMPARE(read("xxx", xxxFile({}, records + close)), points);
}

void TestXxxReader::colors()
{
    const auto pattern = design("xxx", xxxFile({0xFF102030, 0x00FFFFFF}, close));
    QCOMPARE(threadsText(*pattern), QStringLiteral("#102030 ///; #ffffff ///"));
    QCOMPARE(threadsText(*design("xxx", xxxFile({}, hex("0101") + close))),
             QStringLiteral("#202020 ///"));
}

void TestXxxReader::streamWithoutItsEnd()
{
    // The count of bytes stands at 45 when the stitches begin at 256, so without the closing
    // record they are read up to 211 bytes past the palette, or to the end of the file.
    QCOMPARE(read("xxx", xxxFile({}, hex("0101"))), endOfFile);
    const QByteArray padded = xxxFile({}, hex("0101")) + QByteArray(300, '\x01');
    QCOMPARE(design("xxx", padded)->size(), (258 - 45 + 1) / 2 + 1);
}

void TestXxxReader::paletteOffset_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("points");
    QTest::newRow("at the end") << 262 - 6 << "S1,-1 E1,-1";
    QTest::newRow("past the end") << 262 - 5 << endOfFile;
    QTest::newRow("no stitches before it") << 45 << "E0,0";
    QTest::newRow("negative") << -7 << "E0,0";
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << "E0,0";
    // Where the palette would begin wraps around, so nothing moves.
    QTest::newRow("largest") << std::numeric_limits<int>::max() << "S1,-1 E1,-1";
}

void TestXxxReader::paletteOffset()
{
    QFETCH(int, offset);
    QFETCH(QString, points);
    const QByteArray header = QByteArray(39, '#') + le16(0) + QByteArray(211, '#');
    const QByteArray file = header + le32(offset) + hex("0101") + close;
    QCOMPARE(read("xxx", file), points);
}

void TestXxxReader::cutAtEveryByte()
{
    const QByteArray file = xxxFile({0x102030}, hex("0101") + close);
    for (int size = 0; size < file.size(); ++size)
        QCOMPARE(read("xxx", file.left(size)), endOfFile);
}

QTEST_APPLESS_MAIN(TestXxxReader)
#include "tst_xxxreader.moc"
