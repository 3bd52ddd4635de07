#include "base/threads/FlagAbortCheck.h"
#include "embroidery/EmbroideryIO.h"
#include "preview/render/DesignPainter.h"
#include "preview/render/PngEncoder.h"
#include "preview/render/PreviewRenderer.h"
#include "preview/render/StitchLight.h"
#include "support/Rows.h"
#include <cmath>
#include <limits>
#include <QPainter>
#include <QtTest>

using Embroidery::EmbPattern;
using Embroidery::EmbThread;
using Embroidery::StitchBlock;
using Pattern = QSharedPointer<EmbPattern>;

namespace {

constexpr double ThreadWidth = 4.0;
constexpr int MaskTolerance = 200; // one pixel of so many: half a per cent
constexpr double ColorTolerance = 2.0;

Pattern emptyPattern()
{
    Pattern pattern = EmbPattern::create();
    pattern->addThread(QSharedPointer<EmbThread>::create(0xc04020u, "", "", "", ""));
    pattern->addThread(QSharedPointer<EmbThread>::create(0x80e0ffu, "", "", "", ""));
    return pattern;
}

/** Stitches in all directions within a square, of at most this length; some are dots. */
Pattern scattered(int count, int side, int length, quint32 seed)
{
    QRandomGenerator chance(seed);
    Pattern pattern = emptyPattern();
    const auto within = [side](int place) { return float(qBound(-side / 2, place, side / 2)); };
    pattern->moveAbs(within(-side), within(-side));
    pattern->moveAbs(within(side), within(side));
    pattern->moveAbs(0, 0);
    for (int i = 0; i < count; ++i) {
        const int last = pattern->size() - 1;
        const int dx = chance.bounded(2 * length + 1) - length;
        const int dy = chance.bounded(2 * length + 1) - length;
        const bool dot = i % 10 == 0;
        pattern->stitchAbs(within(int(pattern->getX(last)) + (dot ? 0 : dx)),
                           within(int(pattern->getY(last)) + (dot ? 0 : dy)));
        if (i == count / 2)
            pattern->color_change();
    }
    return pattern;
}

/** What the toolkit's painter makes of the renderer's own calls. */
QImage reference(const Pattern &pattern, double size)
{
    const QList<StitchBlock> blocks = pattern->asStitchBlock();
    const QRectF rect = pattern->boundingRect();
    const double scale = size / std::max(rect.width(), rect.height());
    QImage image(int(std::ceil(rect.width() * scale)), int(std::ceil(rect.height() * scale)),
                 QImage::Format_ARGB32);
    image.fill(0);
    QPainter painter(&image);
    painter.translate(-std::floor(rect.x() * scale), -std::floor(rect.y() * scale));
    painter.scale(scale, scale);
    PreviewRenderer renderer;
    for (const StitchBlock &block : blocks) {
        QPointF from = block.points.first();
        for (int i = 1; i < block.points.size(); ++i) {
            renderer.drawThread(painter, from, block.points.at(i), QColor(block.thread->getRGB()));
            from = block.points.at(i);
        }
    }
    return image;
}

struct Difference
{
    int mask = 0;     ///< pixels that only one of the pictures has painted
    double color = 0; ///< mean over the channels of those that both have
};

Difference difference(const QImage &a, const QImage &b)
{
    Difference result;
    qint64 sum = 0;
    int common = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            if ((qAlpha(p) == 0) != (qAlpha(q) == 0)) {
                ++result.mask;
            } else if (qAlpha(p) != 0) {
                sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                       std::abs(qBlue(p) - qBlue(q)) + std::abs(qAlpha(p) - qAlpha(q));
                ++common;
            }
        }
    }
    result.color = common > 0 ? double(sum) / (4.0 * common) : 0;
    return result;
}

/** The design as painted within a budget of one's own; null when it was aborted. */
QImage painted(const Pattern &pattern, double size, const DesignPainter::Budget &budget,
               const IAbortCheck &abort = DummyAbortCheck())
{
    const QRectF rect = pattern->boundingRect();
    const double scale = size / std::max(rect.width(), rect.height());
    StitchPainter painter(
        QSizeF(std::ceil(rect.width() * scale), std::ceil(rect.height() * scale)).toSize(), scale,
        QPointF(-std::floor(rect.x() * scale), -std::floor(rect.y() * scale)), ThreadWidth);
    const StitchLight light(QVector3D(0.7f, 0.7f, 0.7f), QVector3D(1, 1, 1), QVector3D(0, 0, 1),
                            0.3f);
    return DesignPainter(painter, light, abort).paint(pattern->asStitchBlock(), budget)
               ? painter.take()
               : QImage();
}

constexpr DesignPainter::Budget StitchByStitch = {std::numeric_limits<qint64>::max(), 0};
constexpr DesignPainter::Budget FromTheTop = {0, std::numeric_limits<qint64>::max()};

} // namespace

Q_DECLARE_METATYPE(Pattern)

class tst_StitchPainter : public QObject
{
    Q_OBJECT

private slots:
    void paintsWhatThePainterPaints_data()
    {
        const Rows<Pattern, double> row("pattern", "size");

        // From threads of a third of a pixel, where the painter has another way, to thick ones.
        for (const double size : {100.0, 200.0, 400.0, 800.0}) {
            const auto named = [size](const char *what) {
                return QStringLiteral("%1, %2 pixels").arg(QLatin1String(what)).arg(size).toUtf8();
            };
            for (const char *name :
                 {"Flowers/rose.dst", "Letters/hello.pes", "Shapes/mandala.jef"}) {
                const QString path = QStringLiteral(SAMPLES_DIR "/") + QLatin1String(name);
                row(named(name), Embroidery::EmbroideryIO::readFile(path, {}), size);
            }
            row(named("short stitches"), scattered(4000, 900, 20, 1), size);
            row(named("long stitches"), scattered(300, 1500, 900, 2), size);
            row(named("thick threads"), scattered(60, 150, 60, 3), size);
            row(named("thin threads"), scattered(3000, 3700, 300, 4), size);
        }
        // The thread is exactly a pixel wide, just more and just less.
        for (const int side : {1600, 1599, 1601})
            row(QByteArray::number(side), scattered(2000, side, 60, 5), 400.0);
    }

    void paintsWhatThePainterPaints()
    {
        QFETCH(Pattern, pattern);
        QFETCH(double, size);
        const QImage expected = reference(pattern, size);
        const QImage actual = PreviewRenderer().render(pattern, size);
        QCOMPARE(actual.size(), expected.size());
        QCOMPARE(actual.format(), QImage::Format_ARGB32);
        const Difference found = difference(actual, expected);
        const int pixels = actual.width() * actual.height();
        QVERIFY2(found.mask * MaskTolerance <= pixels,
                 qPrintable(QStringLiteral("%1 of %2 pixels").arg(found.mask).arg(pixels)));
        QVERIFY2(found.color <= ColorTolerance, qPrintable(QString::number(found.color)));
    }

    void lightIsThatOfTheGradient()
    {
        PreviewRenderer renderer;
        const QColor color(0x80, 0x40, 0xc0);
        for (int degrees = 0; degrees < 360; degrees += 15) {
            const QPointF along(std::cos(qDegreesToRadians(double(degrees))),
                                std::sin(qDegreesToRadians(double(degrees))));
            const Pattern pattern = EmbPattern::create();
            pattern->addThread(QSharedPointer<EmbThread>::create(color.rgb(), "", "", "", ""));
            const QPointF from(500 - 100 * along.x(), 500 - 100 * along.y());
            const QPointF to(500 + 100 * along.x(), 500 + 100 * along.y());
            pattern->moveAbs(0, 0);
            pattern->moveAbs(1000, 1000);
            pattern->moveAbs(float(from.x()), float(from.y()));
            pattern->stitchAbs(float(to.x()), float(to.y()));
            const QImage image = renderer.render(pattern, 1000);
            const QGradientStops stops = renderer.buildGradient(from, to, color).stops();
            // Beyond its end a stitch has the colour of the end.
            const QPointF before = from - along;
            const QPointF behind = to + along;
            const QRgb first = image.pixel(int(before.x()), int(before.y()));
            const QRgb last = image.pixel(int(behind.x()), int(behind.y()));
            QVERIFY(qAbs(qRed(first) - stops.first().second.red()) <= 1);
            QVERIFY(qAbs(qBlue(first) - stops.first().second.blue()) <= 1);
            QVERIFY(qAbs(qRed(last) - stops.last().second.red()) <= 1);
            QVERIFY(qAbs(qGreen(last) - stops.last().second.green()) <= 1);
        }
    }

    void fromTheTopIsTheSamePicture_data()
    {
        const Rows<Pattern, double> row("pattern", "tolerance");
        row("opaque", scattered(3000, 600, 60, 6), 0.0);
        row("covered all over", scattered(30000, 200, 60, 7), 0.0);
        // Mixing in the other order rounds otherwise.
        row("thin", scattered(20000, 3000, 200, 8), 1.0);
    }

    void fromTheTopIsTheSamePicture()
    {
        QFETCH(Pattern, pattern);
        QFETCH(double, tolerance);
        const Difference found =
            difference(painted(pattern, 400, FromTheTop), painted(pattern, 400, StitchByStitch));
        QCOMPARE(found.mask, 0);
        QVERIFY2(found.color <= tolerance, qPrintable(QString::number(found.color)));
    }

    void budgetLeavesOutOnlyWhatIsHidden()
    {
        // A square sewn over and over, and first of all, below everything, a larger one.
        Pattern pattern = emptyPattern();
        const auto sewSquare = [&pattern](int side) {
            for (int y = 0; y <= side; y += 2)
                pattern->stitchAbs(float(y % 4 ? 0 : side), float(y));
        };
        sewSquare(400);
        for (int i = 0; i < 60; ++i)
            sewSquare(300);
        const QImage whole = painted(pattern, 400, StitchByStitch);
        const QImage thrifty = painted(pattern, 400, {0, 4000000});
        QVERIFY(whole != thrifty);
        const Difference found = difference(whole, thrifty);
        QVERIFY2(found.mask < 400 * 400 / 3, qPrintable(QString::number(found.mask)));
        // What lies on top is exact.
        QCOMPARE(thrifty.copy(0, 0, 290, 290), whole.copy(0, 0, 290, 290));
        // No real design comes near the budget of a preview.
        const DesignPainter::Budget real = DesignPainter::Budget::forPicture(QSize(400, 400));
        QCOMPARE(painted(pattern, 400, real), whole);
    }

    void standsHostileCoordinates()
    {
        const float far = 3e38f;
        for (const float x :
             {1e-38f, 1e9f, -1e9f, far, std::nanf(""), std::numeric_limits<float>::infinity()}) {
            const Pattern pattern = scattered(50, 100, 50, 9);
            pattern->stitchAbs(x, 0);
            pattern->stitchAbs(0, x);
            pattern->stitchAbs(x, -x);
            const QImage image = PreviewRenderer().render(pattern, 400);
            QVERIFY(image.isNull() || image.width() <= 400);
            // A first stitch that comes from far away, and a thread as wide as the world.
            const Pattern distant = EmbPattern::create();
            distant->stitchAbs(x, x);
            distant->stitchAbs(x + 1, x + 1);
            PreviewRenderer().render(distant, 400);
        }
    }

    void stopsWhenAborted()
    {
        FlagAbortCheck abort;
        const Pattern pattern = scattered(5000, 600, 60, 10);
        QVERIFY(!PreviewRenderer().render(pattern, 400, abort).isNull());
        abort.abort();
        QVERIFY(PreviewRenderer().render(pattern, 400, abort).isNull());
        QVERIFY(painted(pattern, 400, FromTheTop, abort).isNull());
    }

    void encodesForEveryDecoder_data()
    {
        const Rows<QImage> row("image");
        QImage noise(61, 43, QImage::Format_ARGB32);
        QRandomGenerator chance(11);
        for (int y = 0; y < noise.height(); ++y) {
            for (int x = 0; x < noise.width(); ++x)
                noise.setPixel(x, y, chance.generate());
        }
        row("noise", noise);
        row("one pixel", noise.copy(0, 0, 1, 1));
        row("a row", noise.copy(0, 0, 61, 1));
        row("a column", noise.copy(0, 0, 1, 43));
        row("transparent", PreviewRenderer().render(EmbPattern::create(), 400));
        row("half transparent", PreviewRenderer().render(scattered(500, 3700, 300, 12), 400));
        row("design",
            PreviewRenderer().render(Embroidery::EmbroideryIO::readFile(
                                         QStringLiteral(SAMPLES_DIR "/Flowers/rose.dst"), {}),
                                     400));
    }

    void encodesForEveryDecoder()
    {
        QFETCH(QImage, image);
        const QByteArray bytes = PngEncoder::encode(image);
        // The decoder behind this checks the checksums and lengths of all parts.
        const QImage decoded = QImage::fromData(bytes, "PNG");
        QCOMPARE(decoded.convertToFormat(QImage::Format_ARGB32), image);
        QBuffer buffer;
        QVERIFY(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG"));
        // At most a quarter larger than the toolkit writes it; tiny files aside.
        QVERIFY2(bytes.size() <= buffer.size() * 5 / 4 + 1024, QByteArray::number(bytes.size()));
    }
};

QTEST_MAIN(tst_StitchPainter)
#include "tst_stitchpainter.moc"
