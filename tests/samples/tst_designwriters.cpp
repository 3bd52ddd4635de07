#include "embroidery/EmbroideryIO.h"
#include "support/Rows.h"
#include "writers/DesignWriters.h"

#include <QDirIterator>
#include <QTest>

using namespace Embroidery;

/** Two colours, every length a step may have, both signs, a trim and a way too long for one jump.
 */
static QSharedPointer<EmbPattern> design()
{
    const QSharedPointer<EmbPattern> pattern = EmbPattern::create();
    pattern->setName("Both ways");
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

class TestDesignWriters : public QObject
{
    Q_OBJECT

private slots:
    void readsBack_data()
    {
        const Rows<QString, bool> row("format", "keepsColors");
        // The others have greys, or the nearest colours of a chart.
        const QStringList exact{"dst", "pes", "xxx", "hus"};
        for (const QString &format : DesignWriters::formats())
            row(qPrintable(format), format, exact.contains(format));
    }

    void readsBack()
    {
        QFETCH(QString, format);
        QFETCH(bool, keepsColors);
        const QSharedPointer<EmbPattern> original = design();
        const QSharedPointer<EmbPattern> read = EmbroideryIO::readByteArray(
            "design." + format, DesignWriters::write(format, *original));
        const QList<StitchBlock> expected = original->asStitchBlock();
        const QList<StitchBlock> actual = read->asStitchBlock();
        QCOMPARE(actual.size(), expected.size());
        for (int i = 0; i < expected.size(); ++i)
            QCOMPARE(actual[i].points, expected[i].points);
        QCOMPARE(read->getThreadCount(), 2);
        QCOMPARE(read->boundingRect(), original->boundingRect());
        for (int i = 0; i < 2 && keepsColors; ++i)
            QCOMPARE(read->threadList()[i]->getRGB(), original->threadList()[i]->getRGB());
    }

    void samplesRead()
    {
        int count = 0;
        for (QDirIterator it(QStringLiteral(SAMPLES_DIR), QDir::Files,
                             QDirIterator::Subdirectories);
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
};

QTEST_GUILESS_MAIN(TestDesignWriters)
#include "tst_designwriters.moc"
