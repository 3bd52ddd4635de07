#include "embroidery/support/DesignTable.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"
#include "support/Rows.h"

#include <QtTest>

using namespace TestSupport;

const QByteArray close = hex("7f000000");
const QString endOfFile = "! Unexpected end of file.";

class TestXxxReader : public QObject
{
    Q_OBJECT

private slots:
    void records_data() { addDesigns("xxx"); }

    void records()
    {
        QFETCH(QByteArray, bytes);
        QTEST(read("xxx", xxxFile({}, bytes + close)), "points");
    }

    void colors()
    {
        const auto pattern = design("xxx", xxxFile({0xFF102030, 0x00FFFFFF}, close));
        QCOMPARE(threadsText(*pattern), "#102030 ///; #ffffff ///");
        QCOMPARE(threadsText(*design("xxx", xxxFile({}, hex("0101") + close))), "#202020 ///");
    }

    void streamWithoutItsEnd()
    {
        // The count of bytes stands at 45 when the stitches begin at 256, so without the closing
        // record they are read up to 211 bytes past the palette, or to the end of the file.
        QCOMPARE(read("xxx", xxxFile({}, hex("0101"))), endOfFile);
        const QByteArray padded = xxxFile({}, hex("0101")) + QByteArray(300, '\x01');
        QCOMPARE(design("xxx", padded)->size(), (258 - 45 + 1) / 2 + 1);
    }

    void paletteOffset_data()
    {
        const Rows<int, QString> row("offset", "points");
        row("at the end", 262 - 6, "S1,-1 E1,-1");
        row("past the end", 262 - 5, endOfFile);
        row("no stitches before it", 45, "E0,0");
        row("negative", -7, "E0,0");
        row("smallest", std::numeric_limits<int>::min(), "E0,0");
        // Where the palette would begin wraps around, so nothing moves.
        row("largest", std::numeric_limits<int>::max(), "S1,-1 E1,-1");
    }

    void paletteOffset()
    {
        QFETCH(int, offset);
        const QByteArray header = QByteArray(39, '#') + le16(0) + QByteArray(211, '#');
        const QByteArray file = header + le32(offset) + hex("0101") + close;
        QTEST(read("xxx", file), "points");
    }

    void cutAtEveryByte()
    {
        const QByteArray file = xxxFile({0x102030}, hex("0101") + close);
        for (int size = 0; size < file.size(); ++size)
            QCOMPARE(read("xxx", file.left(size)), endOfFile);
    }
};

QTEST_APPLESS_MAIN(TestXxxReader)
#include "tst_xxxreader.moc"
