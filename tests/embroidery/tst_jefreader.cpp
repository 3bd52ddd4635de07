#include "embroidery/EmbPattern.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"

#include <QtTest>

using namespace TestSupport;

namespace {

const QString endOfFile = QStringLiteral("! Unexpected end of file.");

} // namespace

class TestJefReader : public QObject
{
    Q_OBJECT

private slots:
    void records_data();
    void records();
    void palette();
    void offsets();
};

void TestJefReader::records_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("points");

    QTest::newRow("empty") << hex("") << "E0,0";
    QTest::newRow("stitches") << hex("0102 ff80") << "S1,-2 S0,126 E0,126";
    QTest::newRow("colour change drops its operand") << hex("8001 0505") << "C0,0 E0,0";
    QTest::newRow("trim") << hex("8002 0000") << "T0,0 E0,0";
    QTest::newRow("move") << hex("8002 03ff") << "M3,1 E3,1";
    QTest::newRow("end") << hex("8010 0000 0101") << "E0,0";
    QTest::newRow("code 3 ends") << hex("8003 0000 0101") << "E0,0";
    QTest::newRow("code 4 ends") << hex("8004 0101 0101") << "E0,0";
    QTest::newRow("no operand") << hex("0101 8001") << "S1,-1 E1,-1";
    QTest::newRow("half an operand") << hex("8001 05") << "E0,0";
    QTest::newRow("half a record") << hex("0101 05") << endOfFile;
}

void TestJefReader::records()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, points);
    QCOMPARE(read("jef", jefFile({}, bytes)), points);
}

void TestJefReader::palette()
{
    const QByteArray file = jefFile({-3, 80, std::numeric_limits<int>::min()}, QByteArray());
    // 2147483648 % 79 is 25.
    QCOMPARE(threadsText(*design("jef", file)),
             QStringLiteral("#ffff17 Sunflower/3/Janome/Janome; #000000 Black/1/Janome/Janome; "
                            "#98d6bd Pale Aqua/25/Janome/Janome"));
}

void TestJefReader::offsets()
{
    const QByteArray rest = QByteArray(20, '#') + le32(-5) + QByteArray(88, '#') + hex("0101");
    QCOMPARE(read("jef", le32(116) + rest), QStringLiteral("S1,-1 E1,-1"));
    QCOMPARE(read("jef", le32(118) + rest), QStringLiteral("E0,0"));
    QCOMPARE(read("jef", le32(119) + rest), endOfFile);
    QCOMPARE(read("jef", le32(-1) + rest), QStringLiteral("S1,-1 E1,-1"));
    QCOMPARE(read("jef", le32(116) + QByteArray(20, '#') + le32(2000000000) + rest), endOfFile);
    QCOMPARE(read("jef", "123"), endOfFile);
}

QTEST_APPLESS_MAIN(TestJefReader)
#include "tst_jefreader.moc"
