#include "embroidery/HoopSizes.h"
#include "preview/drawing/DesignDrawing.h"
#include "preview/drawing/HoopOutline.h"
#include "preview/drawing/StitchRaster.h"
#include "support/Rows.h"
#include <cmath>
#include <QPainter>
#include <QtTest>

using Embroidery::EmbPattern;
using Embroidery::EmbThread;
using Embroidery::HoopSizes;
using Pattern = QSharedPointer<EmbPattern>;
using Order = QSharedPointer<const SewingOrder>;

constexpr QRgb Red = 0xFFC00000;
constexpr QRgb Green = 0xFF00A000;
constexpr QRgb Blue = 0xFF0000C0;

static Pattern patternOf(const QVector<QRgb> &colors)
{
    Pattern pattern = EmbPattern::create();
    for (const QRgb color : colors) {
        pattern->addThread(QSharedPointer<EmbThread>::create(color, "", "", "", ""));
    }
    return pattern;
}

/** A red line, a jump with a change to the next thread, and a blue line below it. */
static Pattern twoLines()
{
    Pattern pattern = patternOf({Red, Blue});
    pattern->moveAbs(0, 10);
    pattern->stitchAbs(50, 10);
    pattern->stitchAbs(100, 10);
    pattern->color_change();
    pattern->moveAbs(0, 90);
    pattern->stitchAbs(100, 90);
    pattern->end();
    return pattern;
}

static QImage blank(int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

static QImage drawn(const Order &order, const DrawingStyle &style = DrawingStyle(),
                    int end = INT_MAX)
{
    QImage image = blank(100);
    DesignDrawing(order, style).paint(image, QPointF(), 1.0, {0, end});
    return image;
}

static Order orderOf(const Pattern &pattern)
{
    return Order(new SewingOrder(pattern));
}

/** A pattern of every command in no sensible order. */
static Pattern confusion(quint32 seed)
{
    QRandomGenerator random(seed);
    Pattern pattern = EmbPattern::create();
    const int commands[] = {0, 0, 0, 0, 0, 1, 1, 2, 3, 5, 9, 226, 0x100, 6};
    const int count = random.bounded(1, 900);
    for (int i = 0; i < count; ++i) {
        // Rows as long as those of a real design, too.
        const int command = random.bounded(20) == 0 ? commands[random.bounded(14)] : 0;
        pattern->addStitchAbs(float(random.bounded(-500, 500)), float(random.bounded(-500, 500)),
                              command);
    }
    pattern->ensureAllThreadsSetup();
    return pattern;
}

/** Where threads lie: as stitch blocks have it, and as the order does. */
static QVector<QLineF> linesOf(const QList<Embroidery::StitchBlock> &blocks)
{
    QVector<QLineF> lines;
    for (const Embroidery::StitchBlock &block : blocks) {
        for (int i = 1; i < block.points.size(); ++i) {
            lines.append(QLineF(block.points.at(i - 1), block.points.at(i)));
        }
    }
    return lines;
}

static QVector<QLineF> linesOf(const SewingOrder &order)
{
    QVector<QLineF> lines;
    for (const StitchRun &run : order.runs()) {
        QPointF from = run.start;
        for (int i = run.firstPoint; run.kind == StitchRun::Sewn && i < run.endPoint; ++i) {
            lines.append(QLineF(from, order.pointAt(i)));
            from = order.pointAt(i);
        }
    }
    return lines;
}

/** The mean difference of the channels of two images of one size. */
static double difference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                   std::abs(qBlue(p) - qBlue(q));
        }
    }
    return sum / 3.0 / a.width() / a.height();
}

class tst_DesignDrawing : public QObject
{
    Q_OBJECT

private slots:
    // The same rules written down twice must not drift apart.
    void sewsTheLinesOfTheBlocks()
    {
        for (quint32 seed = 0; seed < 200; ++seed) {
            const Pattern pattern = confusion(seed);
            pattern->addStitchAbs(-600, -600, Embroidery::StitchCommandMove);
            pattern->addStitchAbs(600, 600, Embroidery::StitchCommandMove);
            const SewingOrder order(pattern);
            QCOMPARE(linesOf(order), linesOf(pattern->asStitchBlock()));
            int point = 0;
            int stitches = 0;
            for (const ThreadUse &use : order.threadUses()) {
                QCOMPARE(use.firstPoint, point);
                QCOMPARE(order.useAt(use.firstPoint), order.useAt(use.endPoint - 1));
                point = use.endPoint;
                stitches += use.stitches;
            }
            QCOMPARE(stitches, linesOf(order).size());
            QVERIFY(order.threadUses().isEmpty() || point == pattern->size());
        }
    }

    void tellsTheThreadsInOrder()
    {
        const SewingOrder order(twoLines());
        QCOMPARE(order.pointCount(), 7);
        QCOMPARE(order.bounds(), QRectF(0, 10, 100, 80));
        const QVector<ThreadUse> &uses = order.threadUses();
        QCOMPARE(uses.size(), 2);
        QCOMPARE(uses.at(0).thread->getRGB(), Red);
        QCOMPARE(uses.at(0).stitches, 2);
        QCOMPARE(uses.at(0).length, 100.0);
        QCOMPARE(uses.at(0).endPoint, 3);
        QCOMPARE(uses.at(1).thread->getRGB(), Blue);
        QCOMPARE(uses.at(1).stitches, 1);
        QCOMPARE(uses.at(1).endPoint, 7);
        QCOMPARE(order.useAt(2), 0);
        QCOMPARE(order.useAt(3), 1);
        QCOMPARE(order.useAt(7), 1);
    }

    void leavesOutThreadsThatSewNothing()
    {
        const Pattern pattern = patternOf({Red, Green, Blue, Red});
        pattern->color_change();
        pattern->stitchAbs(10, 0);
        pattern->color_change();
        pattern->color_change();
        pattern->stitchAbs(10, 20);
        pattern->color_change();
        const SewingOrder order(pattern);
        QCOMPARE(order.threadUses().size(), 2);
        QCOMPARE(order.threadUses().at(0).thread->getRGB(), Red);
        QCOMPARE(order.threadUses().at(1).thread->getRGB(), Blue);
        QCOMPARE(order.threadUses().at(1).endPoint, 6);
    }

    void countsNothingWhereNothingIsSewn()
    {
        const Pattern empty = EmbPattern::create();
        const Pattern moves = EmbPattern::create();
        moves->moveAbs(10, 10);
        moves->color_change();
        moves->end();
        for (const Pattern &pattern : {empty, moves}) {
            const Order order = orderOf(pattern);
            QVERIFY(order->threadUses().isEmpty() && order->runs().isEmpty());
            QVERIFY(order->bounds().isNull());
            QCOMPARE(order->useAt(0), -1);
            QCOMPARE(drawn(order), blank(100));
        }
    }

    void beginsWithinTheDesign()
    {
        const Pattern pattern = patternOf({Red});
        pattern->stitchAbs(60, 60);
        pattern->stitchAbs(90, 60);
        const Order order = orderOf(pattern);
        QCOMPARE(order->threadUses().first().length, 30.0);
        QCOMPARE(drawn(order).pixel(30, 30), QRgb(0xFFFFFFFF));
    }

    void drawsEachThreadWhereItLies()
    {
        const QImage image = drawn(orderOf(twoLines()));
        // Lit from the upper left and lying flat, both are brighter than they are at their middle.
        const QColor red = image.pixelColor(75, 10);
        QVERIFY(red.red() > 100 && red.green() == 0 && red.blue() == 0);
        const QColor blue = image.pixelColor(50, 90);
        QVERIFY(blue.blue() > 100 && blue.red() == 0 && blue.green() == 0);
        // 0.4 mm wide, and nothing besides.
        for (const int y : {0, 5, 15, 50, 85, 95}) {
            QCOMPARE(image.pixel(50, y), QRgb(0xFFFFFFFF));
        }
        QVERIFY(image.pixel(50, 9) != 0xFFFFFFFF && image.pixel(50, 11) != 0xFFFFFFFF);
    }

    void drawsUpToAPoint()
    {
        const Order order = orderOf(twoLines());
        const QImage first = drawn(order, {}, 2);
        QVERIFY(first.pixel(25, 10) != 0xFFFFFFFF);
        QCOMPARE(first.pixel(75, 10), QRgb(0xFFFFFFFF));
        QCOMPARE(drawn(order, {}, 5).pixel(50, 90), QRgb(0xFFFFFFFF));
        QCOMPARE(drawn(order, {}, 6), drawn(order));
        QCOMPARE(drawn(order, {}, 0), blank(100));
    }

    void drawsInPartsWhatItDrawsAtOnce()
    {
        DrawingStyle style;
        style.jumps = true;
        const Order order = orderOf(confusion(7));
        const DesignDrawing drawing(order, style);
        QImage whole = blank(300);
        QVERIFY(drawing.paint(whole, QPointF(-500, -500), 0.3, drawing.everything()));
        QImage parts = blank(300);
        for (int i = 0; i < order->pointCount(); i += 37) {
            drawing.paint(parts, QPointF(-500, -500), 0.3, {i, i + 37});
        }
        QCOMPARE(parts, whole);
        // And so does what lies side by side.
        QImage right = blank(150);
        drawing.paint(right, QPointF(0, -500), 0.3, drawing.everything());
        QVERIFY(difference(right, whole.copy(150, 0, 150, 150)) < 0.1);
    }

    void showsJumpsOnDemand()
    {
        const Order order = orderOf(twoLines());
        DrawingStyle style;
        style.jumps = true;
        const QImage with = drawn(order, style);
        const QImage without = drawn(order);
        QVERIFY(with != without);
        int touched = 0;
        for (int y = 20; y < 80; ++y) {
            for (int x = 0; x < 100; ++x) {
                QCOMPARE(without.pixel(x, y), QRgb(0xFFFFFFFF));
                touched += with.pixel(x, y) != 0xFFFFFFFF ? 1 : 0;
            }
        }
        // A thin line from one to the other, of which every other piece is missing.
        QVERIFY2(touched > 40 && touched < 160, QByteArray::number(touched));

        QImage dense = blank(200);
        dense.setDevicePixelRatio(2.0);
        DesignDrawing(order, style).paint(dense, QPointF(), 2.0, {0, INT_MAX});
        int touchedDense = 0;
        for (int y = 40; y < 160; ++y) {
            for (int x = 0; x < 200; ++x)
                touchedDense += dense.pixel(x, y) != 0xFFFFFFFF ? 1 : 0;
        }
        // Twice as long there, and twice as wide.
        QVERIFY2(touchedDense > touched * 5 / 2, QByteArray::number(touchedDense));
    }

    void letsOneThreadStandOut()
    {
        const Order order = orderOf(twoLines());
        DrawingStyle style;
        style.highlightedUse = 1;
        const QImage image = drawn(order, style);
        QCOMPARE(image.pixel(50, 90), drawn(order).pixel(50, 90));
        QVERIFY(image.pixelColor(75, 10).green() > 150);
        style.fabric = Qt::black;
        QVERIFY(drawn(order, style).pixelColor(75, 10).red() < 80);
    }

    void drawsPlainLinesWithAPainter()
    {
        QImage image = blank(100);
        QPainter painter(&image);
        const DesignDrawing drawing(orderOf(twoLines()));
        drawing.paint(painter, {0, 3});
        QCOMPARE(image.pixel(25, 10), Red);
        QCOMPARE(image.pixel(75, 10), Red);
        QCOMPARE(image.pixel(50, 90), QRgb(0xFFFFFFFF));
        drawing.paint(painter, drawing.everything());
        QCOMPARE(image.pixel(50, 90), Blue);
    }

    void stopsWhenCancelled()
    {
        const std::atomic<bool> cancelled{true};
        QImage image = blank(100);
        const DesignDrawing drawing(orderOf(twoLines()));
        QVERIFY(!drawing.paint(image, QPointF(), 1.0, drawing.everything(), &cancelled));
        QCOMPARE(image.pixel(50, 90), QRgb(0xFFFFFFFF));
    }

    void drawsStitchesAsAPainterDoes_data()
    {
        const Rows<QLineF, double> row("line", "scale");
        row("level", QLineF(10, 20, 80, 20), 1.0);
        row("upright", QLineF(20, 80, 20, 10), 1.0);
        row("slanting", QLineF(10, 15, 80, 60), 1.0);
        row("backwards", QLineF(80, 15, 10, 90), 1.0);
        row("dot", QLineF(50, 50, 50.01, 50), 2.0);
        row("thick", QLineF(10, 10, 12, 14), 7.0);
        row("thin", QLineF(40, 40, 300, 200), 0.2);
        row("over the edges", QLineF(-40, -5, 130, 101), 1.0);
    }

    void drawsStitchesAsAPainterDoes()
    {
        QFETCH(QLineF, line);
        QFETCH(double, scale);
        QImage image = blank(100);
        StitchRaster(&image, QPointF(), scale).drawStitch(line.p1(), line.p2(), Green, Green);
        QImage expected = blank(100);
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        painter.setPen(QPen(QColor(Green), StitchRaster::ThreadWidth, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(line);
        painter.end();
        // Below a pixel's width a painter is not exact either.
        const double tolerance = scale < 0.5 ? 0.6 : 0.05;
        const double ink = difference(expected, blank(100));
        QVERIFY(ink > 0.05);
        QVERIFY(difference(image, expected) < tolerance * ink);
    }

    // Coordinates from a damaged file, and a large design seen from near.
    void keepsItsPlaceInEndlessLines()
    {
        QImage image = blank(100);
        StitchRaster raster(&image, QPointF(0, 0), 10.0);
        raster.drawStitch(QPointF(-1e9, 5), QPointF(1e9, 5), Red, Blue);
        // Half way from one colour to the other.
        QCOMPARE(image.pixelColor(50, 50), QColor(96, 0, 96));
        QCOMPARE(image.pixel(50, 50), image.pixel(0, 50));
        QCOMPARE(image.pixel(50, 50), image.pixel(99, 50));
        QCOMPARE(image.pixel(50, 20), QRgb(0xFFFFFFFF));
        raster.drawStitch(QPointF(-1e12, 1e12), QPointF(-1e12, -1e12), Red, Blue);
        QCOMPARE(image.pixel(50, 20), QRgb(0xFFFFFFFF));
    }

    void choosesTheSmallestHoop_data()
    {
        const Rows<QSizeF, bool, QSizeF> row("design", "imperial", "hoop");
        row("small", QSizeF(10, 10), false, QSizeF(90, 90));
        row("exactly", QSizeF(100, 90), false, QSizeF(100, 90));
        row("just over", QSizeF(100.1, 130.1), false, QSizeF(130, 140));
        row("standing", QSizeF(99, 300.5), false, QSizeF(100, 360));
        row("lying", QSizeF(300.5, 99), false, QSizeF(360, 100));
        row("too wide", QSizeF(361, 10), false, {});
        row("too high", QSizeF(10, 361), false, {});
        row("inches", QSizeF(99, 100), true, QSizeF(3.9, 5.1) * 25.4);
        row("too large in inches", QSizeF(356, 10), true, {});
    }

    void choosesTheSmallestHoop()
    {
        QFETCH(QSizeF, design);
        QFETCH(bool, imperial);
        QFETCH(QSizeF, hoop);
        const std::optional<QSizeF> chosen = HoopSizes::smallestAround(design, imperial);
        QCOMPARE(chosen.has_value(), hoop.isValid());
        QCOMPARE(chosen.value_or(QSizeF()), hoop);
    }

    void putsTheHoopAroundTheDesign()
    {
        const QRectF design(-100, 200, 400, 600);
        const QRectF hoop = HoopOutline::around(design, QSizeF(90, 100));
        QCOMPARE(hoop.size(), QSizeF(900, 1000));
        QCOMPARE(hoop.center(), design.center());
        QImage image = blank(100);
        QPainter painter(&image);
        HoopOutline::paint(painter, QRectF(10, 20, 80, 60), Qt::black, 2.0);
        QVERIFY(image.pixelColor(50, 20).value() < 60 && image.pixelColor(10, 50).value() < 60);
        QVERIFY(image.pixelColor(10, 20).value() > 200);
        QCOMPARE(image.pixelColor(50, 50), QColor(Qt::white));
    }
};

QTEST_APPLESS_MAIN(tst_DesignDrawing)
#include "tst_designdrawing.moc"
