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
    void readerByFilename_data();
    void readerByFilename();
    void formatsAreListedInOrder();
    void unknownFormats_data();
    void unknownFormats();
    void missingFile();
    void readsAFileByItsContent();
    void settings();
    void refusesTooManyColours();
};

void TestEmbroideryIO::readerByFilename_data()
{
    QTest::addColumn<QString>("filename");
    QTest::addColumn<bool>("known");

    for (const QString &wildcard : EmbroideryIO::supportedFormats())
        QTest::addRow("%s", qPrintable(wildcard)) << QString(wildcard).replace('*', "a.b") << true;
    QTest::newRow("capitals") << "ROSE.DST" << true;
    QTest::newRow("other") << "rose.foo" << false;
    QTest::newRow("no dot") << "dst" << false;
    QTest::newRow("dot in the folder") << "rose.dst/leaf" << false;
}

void TestEmbroideryIO::readerByFilename()
{
    QFETCH(QString, filename);
    QFETCH(bool, known);
    QCOMPARE(!EmbroideryIO::getReaderByFilename(filename).isNull(), known);
}

void TestEmbroideryIO::formatsAreListedInOrder()
{
    QCOMPARE(EmbroideryIO::supportedFormats(),
             QStringList({"*.pes", "*.pec", "*.dst", "*.xxx", "*.exp", "*.sew", "*.jef", "*.hus"}));
}

void TestEmbroideryIO::unknownFormats_data()
{
    QTest::addColumn<QString>("filename");
    QTest::addColumn<QString>("message");
    QTest::newRow("no extension") << "rose"
                                  << "No reader for file format:";
    QTest::newRow("extension") << "rose.FOO"
                               << "No reader for file format:foo";
}

void TestEmbroideryIO::unknownFormats()
{
    QFETCH(QString, filename);
    QFETCH(QString, message);
    try {
        EmbroideryIO::readByteArray(filename, QByteArray());
        QFAIL("was read");
    } catch (const IOException &e) {
        QCOMPARE(e.message, message);
    }
}

void TestEmbroideryIO::missingFile()
{
    const QString filename = QDir::tempPath() + QStringLiteral("/no/such/rose.dst");
    try {
        EmbroideryIO::readFile(filename, {});
        QFAIL("was read");
    } catch (const IOException &e) {
        QCOMPARE(e.message, QStringLiteral("Failed to open file: ") + filename);
    }
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
