#include "embroidery/support/DesignTable.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"

#include <QtTest>

using namespace TestSupport;

const QString endOfFile = "! Unexpected end of file.";

class TestSewReader : public QObject
{
    Q_OBJECT

private slots:
    void records_data() { addDesigns("sew"); }

    void records()
    {
        QFETCH(QByteArray, bytes);
        QTEST(read("sew", sewFile({}, bytes)), "points");
    }

    void palette()
    {
        QCOMPARE(threadsText(*design("sew", sewFile({3, 65535}, QByteArray()))),
                 QStringLiteral("#ffff17 Sunflower/3/Janome/Janome; "
                                "#899856 Moss Green/44/Janome/Janome"));
        // A palette that runs into the stitches is read all the same.
        const QByteArray file = le16(3771) + QByteArray(7540, '\x01') + hex("0000 0101");
        QCOMPARE(design("sew", file)->threadList().size(), 3771);
    }

    void shortFiles()
    {
        const QByteArray file = sewFile({1}, QByteArray());
        QCOMPARE(file.size(), 7544);
        QCOMPARE(read("sew", file.left(7543)), endOfFile);
        QCOMPARE(read("sew", file.left(3)), endOfFile);
        QCOMPARE(read("sew", QByteArray()), endOfFile);
    }
};

QTEST_APPLESS_MAIN(TestSewReader)
#include "tst_sewreader.moc"
