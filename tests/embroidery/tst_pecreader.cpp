#include "embroidery/support/DesignTable.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/PatternText.h"
#include "support/Rows.h"

#include <QtTest>

using namespace Embroidery;
using namespace TestSupport;

const QString endOfFile = "! Unexpected end of file.";

class TestPecReader : public QObject
{
    Q_OBJECT

private slots:
    void stitches_data() { addDesigns("pec"); }

    void stitches()
    {
        QFETCH(QByteArray, bytes);
        PecParts parts;
        parts.stitches = bytes;
        // A block length that no seek can fail on.
        parts.length = 0;
        QTEST(read("pec", pecFile(parts)), "points");
    }

    void colors()
    {
        PecParts parts;
        parts.colors = hex("05 ff 41");
        QCOMPARE(threadsText(*design("pec", pecFile(parts))),
                 QStringLiteral(
                     "#ed171f Red/5/Brother/Brother; #f0f970 Lemon Yellow/60/Brother/Brother; "
                     "#000000 Unknown/0/Brother/Brother"));
    }

    void label_data()
    {
        const Rows<QByteArray, QString> row("label", "metadata");
        row("trimmed", " LA:Rose       \r", "name=LA:Rose");
        row("blank", QByteArray(16, ' '), "");
        row("UTF-8", "R\xC3\xB6schen        ", QString::fromUtf8("name=R\xC3\xB6schen"));
    }

    void label()
    {
        QFETCH(QByteArray, label);
        PecParts parts;
        parts.label = label;
        const auto pattern = design("pec", pecFile(parts));
        QCOMPARE(pattern->format(), "pec");
        QTEST(metadataText(*pattern), "metadata");
    }

    void labelWithZeroShiftsTheBlock()
    {
        // The text ends at the zero, and what follows is read as if the field had been 5 bytes
        // long.
        PecParts parts;
        parts.label = QByteArray("Rose\0", 5);
        QCOMPARE(read("pec", pecFile(parts)), "E0,0");
    }

    void thumbnails_data()
    {
        const Rows<int, QByteArray, QString> row("images", "graphics", "metadata");

        const QByteArray whole = hex("01 80 ff 00");
        row("no image expected", 0, {}, "");
        row("whole", 2, whole + whole, "");
        row("cut in the first", 2, whole.left(3),
            "pec_graphic_0=#       \n       #########\n        ");
        row("cut in the second keeps the tail of the first", 2, whole + hex("00"),
            "pec_graphic_1=        \n       #########\n        ");
        row("ends before the first", 1, {}, "pec_graphic_0=        \n                \n        ");
    }

    void thumbnails()
    {
        QFETCH(int, images);
        QFETCH(QByteArray, graphics);
        PecParts parts;
        parts.label = QByteArray(16, ' ');
        parts.colors = QByteArray(images + 1, '\x01');
        parts.width = 2;
        parts.height = 2;
        parts.graphics = graphics;
        QTEST(metadataText(*design("pec", pecFile(parts))), "metadata");
    }

    void cutFiles()
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
};

QTEST_APPLESS_MAIN(TestPecReader)
#include "tst_pecreader.moc"
