#include "embroidery/EmbPattern.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/StitchFingerprint.h"
#include "embroidery/StitchPath.h"
#include "support/Rows.h"
#include "writers/DesignWriters.h"

#include <QDirIterator>
#include <QTest>
#include <vector>

using namespace Embroidery;

Q_DECLARE_METATYPE(StitchLikeness)

/** Of words such as "S10,-5": a stitch, a move, a trim, a colour change or the end. */
static QSharedPointer<EmbPattern> design(const QString &text)
{
    static const QString letters = "SMT.EC";
    const QSharedPointer<EmbPattern> pattern = EmbPattern::create();
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const QStringList place = word.mid(1).split(QLatin1Char(','));
        pattern->addStitchAbs(place.value(0).toFloat(), place.value(1).toFloat(),
                              letters.indexOf(word.at(0)));
    }
    return pattern;
}

static QString square()
{
    return "M0,0 S100,0 S100,80 S0,80 S0,0";
}

class TestStitchPath : public QObject
{
    Q_OBJECT

private slots:
    void tellsLikeness_data()
    {
        const Rows<QString, QString, StitchLikeness> row("one", "other", "likeness");
        row("elsewhere in the hoop", square(), "M-50,-40 S50,-40 S50,40 S-50,40 S-50,-40",
            StitchLikeness::Same);
        row("a long stitch in parts", square(), "M0,0 S33,0 S66,0 S100,0 S100,80 S0,80 S0,40 S0,0",
            StitchLikeness::Same);
        row("parts that are rounded down", "M0,0 S100,33 S0,80",
            "M0,0 S33,10 S66,21 S100,33 S50,56 S0,80", StitchLikeness::Same);
        row("a jump in other parts", "M0,0 S20,0 S20,10 M90,50 S100,50 S100,60",
            "M0,0 S20,0 S20,10 T20,10 M5,60 M60,30 M90,50 S90,50 S100,50 S100,60",
            StitchLikeness::Same);
        row("a jump in stitches", "M0,0 S20,0 S20,10 M90,10 S100,10 S100,60",
            "M0,0 S20,0 S20,10 S55,10 S90,10 S100,10 S100,60", StitchLikeness::Same);
        row("a stitch in place before and after", square(),
            "S0,0 M-70,-70 S-70,-70 M0,0 S100,0 S100,80 S0,80 S0,0 S0,0 M500,0 E500,0",
            StitchLikeness::Same);
        row("changes of color at the ends", square(), "C0,0 " + square() + " C0,0 E0,0",
            StitchLikeness::Same);
        row("another color on the way", square(), "M0,0 S100,0 S100,80 C100,80 S0,80 S0,0",
            StitchLikeness::Nearly);
        row("rounded", square(), "M0,1 S101,0 S99,81 S1,80 S0,1", StitchLikeness::Nearly);
        row("moved by more than rounding", square(), "M0,0 S100,0 S100,80 S20,77 S0,80 S0,0",
            StitchLikeness::Different);
        row("another order", square(), "M0,0 S0,80 S100,80 S100,0 S0,0", StitchLikeness::Different);
        row("one more line", square(), square() + " S100,80", StitchLikeness::Different);
        row("there and back again", square(), "M0,0 S100,0 S50,0 S100,0 S100,80 S0,80 S0,0",
            StitchLikeness::Different);
        row("turned", square(), "M0,0 S0,100 S80,100 S80,0 S0,0", StitchLikeness::Different);
        row("larger", square(), "M0,0 S110,0 S110,88 S0,88 S0,0", StitchLikeness::Different);
        row("nothing sewn", "M0,0 M50,50", "M0,0 M50,50", StitchLikeness::Different);
    }

    void tellsLikeness()
    {
        QFETCH(QString, one);
        QFETCH(QString, other);
        QFETCH(StitchLikeness, likeness);

        const StitchPath a(*design(one));
        const StitchPath b(*design(other));

        QCOMPARE(a.compare(b), likeness);
        QCOMPARE(b.compare(a), likeness);
        if (likeness != StitchLikeness::Different)
            QVERIFY(StitchFingerprint(a).resembles(StitchFingerprint(b)));
    }

    /** Long stitches, jumps of all lengths and fill; trims, which some formats have no word for. */
    void knowsADesignInEveryFormat()
    {
        QSharedPointer<EmbPattern> pattern = EmbPattern::create();
        pattern->addThread(QSharedPointer<EmbThread>::create(0xff0000, "Red", "1", "", ""));
        pattern->addThread(QSharedPointer<EmbThread>::create(0x0000ff, "Blue", "2", "", ""));
        pattern->moveAbs(-300, 40);
        for (int step = 0; step < 400; ++step)
            pattern->stitch(step % 2 ? 33 : -31, step % 3);
        pattern->stitch(517, 403);
        pattern->trim();
        pattern->color_change();
        pattern->moveAbs(900, -701);
        for (int step = 0; step < 50; ++step)
            pattern->stitch(step % 2 ? 161 : -163, 2);
        pattern->end();
        const StitchPath original(*pattern);

        const QStringList formats = DesignWriters::formats();
        for (const QString &format : formats) {
            const StitchPath path(*EmbroideryIO::readByteArray(
                "a." + format, DesignWriters::write(format, *pattern)));
            QVERIFY2(path.compare(original) == StitchLikeness::Same, qPrintable(format));
            QVERIFY2(StitchFingerprint(path).resembles(StitchFingerprint(original)),
                     qPrintable(format));
        }
    }

    void knowsTheSamplesApart()
    {
        QStringList names;
        std::vector<StitchPath> paths;
        QDirIterator walk(QStringLiteral(SAMPLES_DIR), {"*.dst"}, QDir::Files,
                          QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            names.append(walk.next());
            paths.emplace_back(*EmbroideryIO::readFile(names.last(), {}));
        }
        QVERIFY(names.size() > 10);
        for (int i = 0; i < names.size(); ++i) {
            for (int j = 0; j < i; ++j)
                QVERIFY2(paths.at(std::size_t(i)).compare(paths.at(std::size_t(j))) ==
                             StitchLikeness::Different,
                         qPrintable(names.at(i) + names.at(j)));
        }
    }
};

QTEST_GUILESS_MAIN(TestStitchPath)
#include "tst_stitchpath.moc"
