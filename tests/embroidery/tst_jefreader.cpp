#include "embroidery/support/DesignTable.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"

#include <QtTest>

using namespace TestSupport;

const QString endOfFile = "! Unexpected end of file.";

class TestJefReader : public QObject
{
    Q_OBJECT

private slots:
    void records_data() { addDesigns("jef"); }

    void records()
    {
        QFETCH(QByteArray, bytes);
        QTEST(read("jef", jefFile({}, bytes)), "points");
    }

    void palette()
    {
        const QByteArray file = jefFile({-3, 80, std::numeric_limits<int>::min()}, QByteArray());
        // 2147483648 % 79 is 25.
        QCOMPARE(threadsText(*design("jef", file)),
                 QStringLiteral("#ffff17 Sunflower/3/Janome/Janome; #000000 Black/1/Janome/Janome; "
                                "#98d6bd Pale Aqua/25/Janome/Janome"));
    }

    void offsets()
    {
        const QByteArray rest = QByteArray(20, '#') + le32(-5) + QByteArray(88, '#') + hex("0101");
        QCOMPARE(read("jef", le32(116) + rest), "S1,-1 E1,-1");
        QCOMPARE(read("jef", le32(118) + rest), "E0,0");
        QCOMPARE(read("jef", le32(119) + rest), endOfFile);
        QCOMPARE(read("jef", le32(-1) + rest), "S1,-1 E1,-1");
        QCOMPARE(read("jef", le32(116) + QByteArray(20, '#') + le32(2000000000) + rest), endOfFile);
        QCOMPARE(read("jef", "123"), endOfFile);
    }
};

QTEST_APPLESS_MAIN(TestJefReader)
#include "tst_jefreader.moc"
