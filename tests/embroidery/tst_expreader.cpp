#include "embroidery/EmbPattern.h"
#include "embroidery/support/PatternText.h"

#include <QtTest>

using namespace TestSupport;

class TestExpReader : public QObject
{
    Q_OBJECT

private slots:
    void records_data();
    void records();
};

void TestExpReader::records_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("points");

    const QString endOfFile = QStringLiteral("! Unexpected end of file");
    QTest::newRow("empty") << hex("") << "E0,0";
    QTest::newRow("stitch") << hex("0102") << "S1,-2 E1,-2";
    QTest::newRow("extremes") << hex("7f80 8180") << "S127,128 S0,256 E0,256";
    QTest::newRow("colour change") << hex("8001 0000") << "C0,0 E0,0";
    QTest::newRow("colour change with x") << hex("8001 0500") << "C0,0 M5,0 E5,0";
    QTest::newRow("colour change with y") << hex("8001 0005") << "C0,0 M0,-5 E0,-5";
    QTest::newRow("stitch by control") << hex("8002 0102") << "S1,-2 E1,-2";
    QTest::newRow("move") << hex("8004 ff01") << "M-1,-1 E-1,-1";
    QTest::newRow("operand may look like a control") << hex("8004 8080") << "M-128,128 E-128,128";
    QTest::newRow("trim") << hex("8080 0707 0101") << "T0,0 S1,-1 E1,-1";
    QTest::newRow("unknown control") << hex("8003 0707 0101") << "S1,-1 E1,-1";
    QTest::newRow("half a record") << hex("0102 03") << endOfFile;
    QTest::newRow("no operand") << hex("8004") << endOfFile;
    QTest::newRow("half an operand") << hex("8004 01") << endOfFile;
}

void TestExpReader::records()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, points);
    QCOMPARE(read("exp", bytes), points);
}

QTEST_APPLESS_MAIN(TestExpReader)
#include "tst_expreader.moc"
