#include "embroidery/EmbPattern.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"
#include "embroidery/IReader.h"
#include "embroidery/ReadHelper.h"
#include "embroidery/support/PatternText.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Embroidery;

class TestEmbroideryIO : public QObject
{
    Q_OBJECT

private slots:
    void formatByExtension_data();
    void formatByExtension();
    void everyFormatHasItsReader();
    void missingFile();
    void readsAFileByItsContent();
    void settings();
    void refusesTooManyColours();
};

void TestEmbroideryIO::formatByExtension_data()
{
    QTest::addColumn<QString>("filename");
    QTest::addColumn<QString>("error");

    QTest::newRow("capitals") << "ROSE.DST" << QString();
    QTest::newRow("several dots") << "a.b.dst" << QString();
    QTest::newRow("other") << "rose.FOO"
                           << "No reader for file format:foo";
    QTest::newRow("no dot") << "dst"
                            << "No reader for file format:";
    QTest::newRow("dot in the folder") << "rose.dst/leaf"
                                       << "No reader for file format:";
}

void TestEmbroideryIO::formatByExtension()
{
    QFETCH(QString, filename);
    QFETCH(QString, error);
    QString message;
    try {
        EmbroideryIO::readByteArray(filename, QByteArray());
    } catch (const IOException &e) {
        message = e.message;
    }
    QCOMPARE(message, error);
}

void TestEmbroideryIO::everyFormatHasItsReader()
{
    const QStringList wildcards = EmbroideryIO::supportedFormats();
    QCOMPARE(wildcards,
             QStringList({"*.pes", "*.pec", "*.dst", "*.xxx", "*.exp", "*.sew", "*.jef", "*.hus"}));
    for (const QString &wildcard : wildcards)
        QVERIFY(EmbroideryIO::getReaderByFilename(wildcard));
}

void TestEmbroideryIO::missingFile()
{
    QVERIFY_EXCEPTION_THROWN(EmbroideryIO::readFile(QStringLiteral("/no/such/rose.dst"), {}),
                             IOException);
}

void TestEmbroideryIO::readsAFileByItsContent()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Rose.DST")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(512, ' ') + QByteArray::fromHex("010003"));
    file.close();
    const auto pattern = EmbroideryIO::readFile(file.fileName(), {});
    QCOMPARE(pattern->format(), QStringLiteral("dst"));
    QCOMPARE(TestSupport::pointsText(*pattern), QStringLiteral("S1,0"));
    QCOMPARE(TestSupport::threadsText(*pattern), QStringLiteral("#202020 ///"));
}

void TestEmbroideryIO::settings()
{
    const auto reader = EmbroideryIO::getReaderByFilename(QStringLiteral("a.dst"));
    EmbroideryIO::setSettings(reader, {{"one", 1}});
    QCOMPARE(reader->get("one"), QVariant(1));
    QCOMPARE(reader->get("two", 2), QVariant(2));
    QVERIFY(reader->get("two").isNull());
    QVERIFY(reader->get("two", 2).isNull());
}

void TestEmbroideryIO::refusesTooManyColours()
{
    QByteArray bytes(512, ' ');
    for (int i = 0; i <= EmbroideryIO::MaximumThreadCount; ++i)
        bytes.append("\0\0\xC3", 3);
    QCOMPARE(TestSupport::read(QStringLiteral("dst"), bytes),
             QStringLiteral("! Design has too many colours"));
}

QTEST_APPLESS_MAIN(TestEmbroideryIO)
#include "tst_embroideryio.moc"
