#include "embroidery/EmbPattern.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"

#include <QtTest>

using namespace TestSupport;

namespace {

const QString endOfFile = QStringLiteral("! Unexpected end of file.");

} // namespace

class TestSewReader : public QObject
{
    Q_OBJECT

private slots:
    void records_data();
    void records();
    void palette();
    void shortFiles();
};

void TestSewReader::records_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("points");

    QTest::newRow("empty") << hex("") << "E0,0";
    QTest::newRow("stitches") << hex("0102 ff80") << "S1,-2 S0,126 E0,126";
    QTest::newRow("colour change drops its operand") << hex("8001 0505") << "C0,0 E0,0";
    QTest::newRow("any odd code changes colour") << hex("8003 0505 8011 0505") << "C0,0 C0,0 E0,0";
    QTest::newRow("move by 2") << hex("8002 03ff") << "M3,1 E3,1";
    QTest::newRow("move by 2 to the same place") << hex("8002 0000") << "M0,0 E0,0";
    QTest::newRow("move by 4") << hex("8004 03ff") << "M3,1 E3,1";
    QTest::newRow("stitch by 16") << hex("8010 03ff") << "S3,1 E3,1";
    QTest::newRow("unknown code") << hex("8008 0101 0101") << "S1,-1 E1,-1";
    QTest::newRow("no operand") << hex("0101 8001") << "S1,-1 E1,-1";
    QTest::newRow("half an operand") << hex("8001 05") << "E0,0";
    QTest::newRow("half a record") << hex("0101 05") << endOfFile;
}

void TestSewReader::records()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, points);
    QCOMPARE(read("sew", sewFile({}, bytes)), points);
}

void TestSewReader::palette()
{
    QCOMPARE(threadsText(*design("sew", sewFile({3, 65535}, QByteArray()))),
             QStringLiteral("#ffff17 Sunflower/3/Janome/Janome; "
                            "#899856 Moss Green/44/Janome/Janome"));
    // A palette that runs into the stitches is read all the same.
    const QByteArray file = le16(3771) + QByteArray(7540, '\x01') + hex("0000 0101");
    QCOMPARE(design("sew", file)->threadList().size(), 3771);
}

void TestSewReader::shortFiles()
{
    const QByteArray file = sewFile({1}, QByteArray());
    QCOMPARE(file.size(), 7544);
    QCOMPARE(read("sew", file.left(7543)), endOfFile);
    QCOMPARE(read("sew", file.left(3)), endOfFile);
    QCOMPARE(read("sew", QByteArray()), endOfFile);
}

QTEST_APPLESS_MAIN(TestSewReader)
#include "tst_sewreader.moc"
