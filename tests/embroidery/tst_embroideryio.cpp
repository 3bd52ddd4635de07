#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"
#include "embroidery/IReader.h"
#include "embroidery/ReadHelper.h"
#include "embroidery/support/PatternText.h"
#include "support/Rows.h"

#include <QtTest>

using namespace Embroidery;

class TestEmbroideryIO : public QObject
{
    Q_OBJECT

private slots:
    void formatByExtension_data()
    {
        const Rows<QString, QString> row("filename", "error");

        row("capitals", "ROSE.DST", {});
        row("several dots", "a.b.dst", {});
        row("other", "rose.FOO", "No reader for file format:foo");
        row("no dot", "dst", "No reader for file format:");
        row("dot in the folder", "rose.dst/leaf", "No reader for file format:");
    }

    void formatByExtension()
    {
        QFETCH(QString, filename);
        QString message;
        try {
            EmbroideryIO::readByteArray(filename, QByteArray());
        } catch (const IOException &e) {
            message = e.message;
        }
        QTEST(message, "error");
    }

    void everyFormatHasItsReader()
    {
        const QStringList wildcards = EmbroideryIO::supportedFormats();
        QCOMPARE(wildcards, QStringList({"*.pes", "*.pec", "*.dst", "*.xxx", "*.exp", "*.sew",
                                         "*.jef", "*.hus"}));
        for (const QString &wildcard : wildcards)
            QVERIFY(EmbroideryIO::getReaderByFilename(wildcard));
    }

    void missingFile()
    {
        QVERIFY_EXCEPTION_THROWN(EmbroideryIO::readFile("/no/such/rose.dst", {}), IOException);
    }

    void readsAFileByItsContent()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("Rose.DST"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(512, ' ') + QByteArray::fromHex("010003"));
        file.close();
        const auto pattern = EmbroideryIO::readFile(file.fileName(), {});
        QCOMPARE(pattern->format(), "dst");
        QCOMPARE(TestSupport::pointsText(*pattern), "S1,0");
        QCOMPARE(TestSupport::threadsText(*pattern), "#202020 ///");
    }

    void settings()
    {
        const auto reader = EmbroideryIO::getReaderByFilename("a.dst");
        EmbroideryIO::setSettings(reader, {{"one", 1}});
        QCOMPARE(reader->get("one"), QVariant(1));
        QCOMPARE(reader->get("two", 2), QVariant(2));
        QVERIFY(reader->get("two").isNull());
        QVERIFY(reader->get("two", 2).isNull());
    }

    void refusesTooManyColours()
    {
        QByteArray bytes(512, ' ');
        for (int i = 0; i <= EmbroideryIO::MaximumThreadCount; ++i)
            bytes.append("\0\0\xC3", 3);
        QCOMPARE(TestSupport::read("dst", bytes), "! Design has too many colours");
    }
};

QTEST_APPLESS_MAIN(TestEmbroideryIO)
#include "tst_embroideryio.moc"
