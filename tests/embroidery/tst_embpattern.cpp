#include "embroidery/support/PatternText.h"
#include "support/Rows.h"

#include <QtTest>

using namespace Embroidery;

constexpr float LargestFloat = 3.4028234663852886e+38F;
constexpr float SmallestNormalFloat = 1.1754943508222875e-38F;

/** One relative unit step in x per letter, as in PatternText; 9 and X are the odd colour changes.
 */
static QSharedPointer<EmbPattern> patternOf(const QString &commands)
{
    const QString letters = "SMTHECQq";
    auto pattern = EmbPattern::create();
    for (const QChar letter : commands) {
        const int command = letter == QLatin1Char('9')   ? 9
                            : letter == QLatin1Char('X') ? 226
                                                         : letters.indexOf(letter);
        pattern->addStitchRel(1, 0, command);
    }
    return pattern;
}

static QString blocksText(EmbPattern &pattern)
{
    QStringList blocks;
    for (const StitchBlock &block : pattern.asStitchBlock()) {
        QStringList xs;
        for (const QPointF &point : block.points)
            xs.append(QString::number(point.x()));
        blocks.append(QStringLiteral("%1:%2")
                          .arg(pattern.threadList().indexOf(block.thread))
                          .arg(xs.join(QLatin1Char(','))));
    }
    return blocks.join(QLatin1Char(' '));
}

class TestEmbPattern : public QObject
{
    Q_OBJECT

private slots:
    void colors_data()
    {
        const Rows<QString, int, QString> row("commands", "threadCount", "blocks");

        row("nothing", "", 0, "");
        row("moves alone", "MMM", 0, "");
        row("colour change alone", "C", 1, "");
        row("one stitch at the start", "S", 1, "0:0,1");
        row("one stitch after a move", "MS", 1, "0:1,2");
        row("change before the first stitch", "CSS", 1, "0:0,2,3");
        row("changes before the first stitch", "CCS", 2, "1:0,3");
        row("two colours join", "SSCSS", 2, "0:0,1,2 1:2,4,5");
        row("other colour changes", "S9SXS", 3, "0:0,1 1:1,3 2:3,5");
        row("trailing colour change", "SCE", 2, "0:0,1");
        row("trim joins, move breaks", "STSMS", 1, "0:0,1 0:1,3 0:4,5");
        row("stop, end and sequins are walked over", "SHQqES", 1, "0:0,1 0:1,6");
        row("changes in a row", "SCCS", 3, "0:0,1 2:1,4");
    }

    void colors()
    {
        QFETCH(QString, commands);

        const auto pattern = patternOf(commands);
        QTEST(pattern->getThreadCount(), "threadCount");
        QTEST(blocksText(*pattern), "blocks");
        QVERIFY(!pattern->threadList().isEmpty());
    }

    void missingThreadsAreGreys_data()
    {
        const Rows<QString, int, QStringList> row("commands", "present", "added");

        row("none needed", "MM", 0, {});
        row("one", "S", 0, {"#202020"});
        row("four", "SCSCSCS", 0, {"#202020", "#515151", "#828282", "#b3b3b3"});
        row("as many as needed", "SCS", 2, {});
        row("more than needed", "S", 3, {});
        // 196 * 2 / 1 + 32 = 424, of which the low 8 bits stay.
        row("wraps", "SCSCS", 2, {"#a8a8a8"});
    }

    void missingThreadsAreGreys()
    {
        QFETCH(QString, commands);
        QFETCH(int, present);

        const auto pattern = patternOf(commands);
        for (int i = 0; i < present; ++i)
            pattern->addThread(pattern->getRandomThread());
        pattern->ensureAllThreadsSetup();
        QStringList colors;
        for (const auto &thread : pattern->threadList().mid(present)) {
            QVERIFY(thread->getDescription().isEmpty());
            colors.append(thread->getHexColor());
        }
        QTEST(colors, "added");
    }

    void operationsWriteTheirCommand()
    {
        auto pattern = EmbPattern::create();
        pattern->stitchAbs(1, 2);
        pattern->stitch(1, 1);
        pattern->moveAbs(5, 6);
        pattern->move(-1, -2);
        pattern->trim(1, 0);
        pattern->trim();
        pattern->stop();
        pattern->color_change();
        pattern->sequin_mode();
        pattern->sequin_eject();
        pattern->end();
        QCOMPARE(TestSupport::pointsText(*pattern),
                 "S1,2 S2,3 M5,6 M4,4 T5,4 T5,4 H5,4 C5,4 Q5,4 q5,4 E5,4");
        QCOMPARE(pattern->getStitchCount(), 11);
        QCOMPARE(pattern->stitchCount(), 22);
    }

    void emptyPattern()
    {
        const auto pattern = EmbPattern::create();
        QVERIFY(pattern->isEmpty());
        QCOMPARE(pattern->getMinX(), LargestFloat);
        QCOMPARE(pattern->boundingRect().left(), static_cast<double>(LargestFloat));
        QVERIFY(pattern->boundingRect().width() < 0);
        pattern->addThread(pattern->getRandomThread());
        QVERIFY(!pattern->isEmpty());
    }

    void boundsOfANegativeDesignReachTheOrigin()
    {
        const auto pattern = EmbPattern::create();
        pattern->stitchAbs(-20, 3);
        pattern->stitchAbs(-10, 7);
        QVERIFY(pattern->getMaxX() == SmallestNormalFloat);
        QCOMPARE(pattern->getMinX(), -20.0F);
        QCOMPARE(pattern->getWidth(), 20.0F);
        QCOMPARE(pattern->boundingRect().top(), 3.0);
        QCOMPARE(pattern->getHeight(), 4.0F);
    }

    void boundsShrinkAfterAMoveFromTheEdge()
    {
        const auto pattern = EmbPattern::create();
        pattern->stitchAbs(1, 1);
        pattern->stitchAbs(9, 5);
        pattern->stitchAbs(4, 2);
        pattern->setLocation(1, 6, 3);
        // The point left the edge, but its new place does not lie on it: nobody noticed.
        QCOMPARE(pattern->getMaxX(), 9.0F);
        pattern->setLocation(2, 1, 2);
        QCOMPARE(pattern->getMaxX(), 6.0F);
        QCOMPARE(pattern->getMaxY(), 3.0F);
    }

    void emptyMetadataRemovesTheKey()
    {
        const auto pattern = EmbPattern::create();
        pattern->setName("Rose");
        QCOMPARE(pattern->getName(), "Rose");
        pattern->setMetadata("name", QString());
        QVERIFY(pattern->getMetadata().isEmpty());
        QCOMPARE(pattern->metadata(EmbPattern::PROP_NAME, "none"), "none");
    }

    void randomThreads()
    {
        const auto pattern = EmbPattern::create();
        const auto third = pattern->threadForIndex(2);
        QCOMPARE(pattern->threadList().size(), 3);
        QCOMPARE(pattern->threadForIndex(2), third);
        QCOMPARE(third->getDescription(), "Random");
        const unsigned int gray = third->getRGB() & 255;
        QVERIFY(gray >= 31 && gray <= 222);
        QCOMPARE(third->getRGB(), 0xFF000000U | gray * 0x010101U);
    }
};

QTEST_APPLESS_MAIN(TestEmbPattern)
#include "tst_embpattern.moc"
