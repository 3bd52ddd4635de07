#include "embroidery/EmbroideryIO.h"
#include "embroidery/HusDecompressor.h"
#include "embroidery/IOException.h"
#include "writers/DesignWriters.h"
#include "writers/HusCompressor.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QTest>

#include <stdexcept>

using namespace Embroidery;

namespace {
QSharedPointer<EmbPattern> readBack(const QString &format, const QByteArray &bytes)
{
    return EmbroideryIO::readByteArray(QStringLiteral("design.") + format, bytes);
}

/** Two colours, every length a step may have, both signs, a trim and a way too long for one jump.
 */
QSharedPointer<EmbPattern> design()
{
    const QSharedPointer<EmbPattern> pattern = EmbPattern::create();
    pattern->setName(QStringLiteral("Both ways"));
    pattern->addThread(QSharedPointer<EmbThread>::create(0xff0000, "Red", "1", "", ""));
    pattern->addThread(QSharedPointer<EmbThread>::create(0x0000ff, "Blue", "2", "", ""));
    pattern->moveAbs(-300, 40);
    for (int step = -121; step <= 121; ++step)
        pattern->stitch(step, -step / 2);
    pattern->trim();
    pattern->color_change();
    pattern->moveAbs(900, -700);
    for (int step = 0; step < 500; ++step)
        pattern->stitch(step % 2 ? 30 : -30, 2);
    pattern->end();
    return pattern;
}
} // namespace

class TestDesignWriters : public QObject
{
    Q_OBJECT

private slots:
    void readsBack_data();
    void readsBack();
    void keepsColors_data();
    void keepsColors();
    void refusesUnknownFormat();
    void compressesWhatDecompresses_data();
    void compressesWhatDecompresses();
    void samplesRead();
};

void TestDesignWriters::readsBack_data()
{
    QTest::addColumn<QString>("format");
    for (const QString &format : DesignWriters::formats())
        QTest::newRow(qPrintable(format)) << format;
}

void TestDesignWriters::readsBack()
{
    QFETCH(QString, format);
    const QSharedPointer<EmbPattern> original = design();
    const QSharedPointer<EmbPattern> read =
        readBack(format, DesignWriters::write(format, *original));
    const QList<StitchBlock> expected = original->asStitchBlock();
    const QList<StitchBlock> actual = read->asStitchBlock();
    QCOMPARE(actual.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(actual[i].points, expected[i].points);
    QCOMPARE(read->getThreadCount(), 2);
    QCOMPARE(read->boundingRect(), original->boundingRect());
}

void TestDesignWriters::keepsColors_data()
{
    QTest::addColumn<QString>("format");
    for (const char *format : {"dst", "pes", "xxx", "hus"})
        QTest::newRow(format) << QString::fromLatin1(format);
}

void TestDesignWriters::keepsColors()
{
    QFETCH(QString, format);
    const QSharedPointer<EmbPattern> read =
        readBack(format, DesignWriters::write(format, *design()));
    QCOMPARE(read->threadList().value(0)->getHexColor(), QStringLiteral("#ff0000"));
    QCOMPARE(read->threadList().value(1)->getHexColor(), QStringLiteral("#0000ff"));
}

void TestDesignWriters::refusesUnknownFormat()
{
    QVERIFY_EXCEPTION_THROWN(DesignWriters::write(QStringLiteral("abc"), *design()),
                             std::invalid_argument);
}

void TestDesignWriters::compressesWhatDecompresses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one byte") << QByteArray("a");
    QTest::newRow("one value") << QByteArray(5000, 'x');
    QTest::newRow("repeats") << QByteArray("stitch and trim, ").repeated(400);
    QRandomGenerator random(7);
    QByteArray noise;
    QByteArray skewed;
    for (int i = 0; i < 70000; ++i) {
        noise.append(char(random.bounded(256)));
        skewed.append(char(random.bounded(1 << random.bounded(1, 9))));
    }
    QTest::newRow("noise") << noise;
    QTest::newRow("skewed") << skewed;
}

void TestDesignWriters::compressesWhatDecompresses()
{
    QFETCH(QByteArray, bytes);
    QByteArray packed = HusCompressor::compress(bytes);
    QByteArray unpacked;
    HusDecompressor(&packed, &unpacked, packed.size(), 10).decompress();
    QCOMPARE(unpacked, bytes);
}

void TestDesignWriters::samplesRead()
{
    int count = 0;
    for (QDirIterator it(QStringLiteral(SAMPLES_DIR), QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();) {
        const QString path = it.next();
        const QSharedPointer<EmbPattern> pattern = EmbroideryIO::readFile(path, {});
        QVERIFY2(pattern->getThreadCount() >= 3, qPrintable(path));
        QVERIFY2(pattern->getWidth() < 1000 && pattern->getHeight() < 1000, qPrintable(path));
        QVERIFY2(pattern->getStitchCount() > 1000, qPrintable(path));
        ++count;
    }
    QVERIFY(count >= 16 * DesignWriters::formats().size());
}

QTEST_GUILESS_MAIN(TestDesignWriters)
#include "tst_designwriters.moc"
