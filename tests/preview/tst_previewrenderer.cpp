#include "preview/render/PreviewRenderer.h"
#include "support/Rows.h"
#include <cmath>
#include <limits>
#include <QPainter>
#include <QtTest>

using Embroidery::EmbPattern;
using Embroidery::EmbThread;
using Pattern = QSharedPointer<EmbPattern>;

using Points = QVector<QPointF>;

// A move to the first point and a stitch to each further one.
static Pattern polyline(const Points &points, unsigned int rgb = 0xff0000)
{
    Pattern pattern = EmbPattern::create();
    pattern->addThread(QSharedPointer<EmbThread>::create(rgb, "", "", "", ""));
    for (int i = 0; i < points.size(); ++i) {
        const float x = float(points.at(i).x());
        const float y = float(points.at(i).y());
        if (i == 0) {
            pattern->moveAbs(x, y);
        } else {
            pattern->stitchAbs(x, y);
        }
    }
    return pattern;
}

static int paintedPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(image.pixel(x, y));
            // Threads have hard edges.
            if (alpha != 0 && alpha != 255) {
                return -1;
            }
            count += alpha != 0 ? 1 : 0;
        }
    }
    return count;
}

Q_DECLARE_METATYPE(Points)

class tst_PreviewRenderer : public QObject
{
    Q_OBJECT

private slots:
    void imageSize_data()
    {
        const Rows<Points, double, QSize> row("points", "size", "expected");

        const QSize none(0, 0);
        row("square", {{0, 0}, {1000, 1000}}, 400.0, QSize(400, 400));
        row("tall", {{0, 0}, {250, 1000}}, 400.0, QSize(100, 400));
        row("fraction is rounded up", {{0, 0}, {1000, 501}}, 400.0, QSize(400, 201));
        row("line off the axis has no height", {{0, 5}, {1000, 5}}, 400.0, none);
        row("line on the axis is a pixel high", {{0, 0}, {1000, 0}}, 400.0, QSize(400, 1));
        row("wholly negative reaches the origin", {{-1000, -1000}, {-500, -500}}, 400.0,
            QSize(400, 400));
        row("single point", {{5, 5}, {5, 5}}, 400.0, none);
        row("no stitches", {}, 400.0, QSize(400, 400));
        row("negative size", {{0, 0}, {1000, 500}}, -400.0, none);
    }

    void imageSize()
    {
        QFETCH(Points, points);
        QFETCH(double, size);
        QFETCH(QSize, expected);
        const QImage image = PreviewRenderer().render(polyline(points), size);
        QCOMPARE(image.size(), expected);
        QCOMPARE(PreviewRenderer::renderToPixmap(polyline(points), size).size(), expected);
        QCOMPARE(paintedPixels(image) > 0, !image.isNull() && !points.isEmpty());
    }

    void whatCannotBeDrawnGivesNoImage()
    {
        QVERIFY(PreviewRenderer::renderToPixmap(Pattern(), 400.0).isNull());
        const Pattern pattern = polyline({{0, 0}, {1000, 500}});
        const double infinity = std::numeric_limits<double>::infinity();
        for (const double size : {1e6, 1e300, infinity, std::nan("")}) {
            QVERIFY(PreviewRenderer().render(pattern, size).isNull());
        }
        const float far = std::numeric_limits<float>::infinity();
        const Pattern endless = polyline({{0, 0}, {1000, 500}});
        endless->stitchAbs(far, far);
        QVERIFY(PreviewRenderer().render(endless, 400.0).isNull());
    }

    void stitchIsShadedAlongItsLength()
    {
        // The frame of moves gives the stitch room on all sides.
        const Pattern pattern = polyline({{100, 200}, {300, 200}}, 0x808080);
        pattern->moveAbs(0, 0);
        pattern->moveAbs(400, 400);
        const QImage image = PreviewRenderer().render(pattern, 400.0);
        QCOMPARE(image.size(), QSize(400, 400));

        PreviewRenderer renderer;
        const QLinearGradient gradient =
            renderer.buildGradient(QPointF(100, 200), QPointF(300, 200), QColor(0x80, 0x80, 0x80));
        QCOMPARE(gradient.start(), QPointF(100, 200));
        QCOMPARE(gradient.finalStop(), QPointF(300, 200));
        const QColor lit = gradient.stops().first().second;
        const QColor dim = gradient.stops().last().second;
        QVERIFY(lit.red() > dim.red());
        QVERIFY(qAbs(qRed(image.pixel(101, 200)) - lit.red()) <= 2);
        QVERIFY(qAbs(qRed(image.pixel(298, 200)) - dim.red()) <= 2);
        // Four units wide: two on each side of the line, rounded ends beyond it.
        QCOMPARE(qAlpha(image.pixel(200, 198)), 255);
        QCOMPARE(qAlpha(image.pixel(200, 201)), 255);
        QCOMPARE(qAlpha(image.pixel(200, 196)), 0);
        QCOMPARE(qAlpha(image.pixel(200, 203)), 0);
        QCOMPARE(qAlpha(image.pixel(98, 200)), 255);
        QCOMPARE(qAlpha(image.pixel(96, 200)), 0);
    }

    void laterStitchesCoverEarlierOnes()
    {
        const Pattern pattern = polyline({{0, 50}, {100, 50}}, 0xff0000);
        pattern->addThread(QSharedPointer<EmbThread>::create(0x0000ffu, "", "", "", ""));
        pattern->color_change();
        pattern->moveAbs(50, 0);
        pattern->stitchAbs(50, 100);
        const QImage image = PreviewRenderer().render(pattern, 400.0);
        const QColor crossing(image.pixel(200, 200));
        QCOMPARE(crossing.red(), 0);
        QVERIFY(crossing.blue() > 0);
        QVERIFY(qRed(image.pixel(40, 200)) > 0);
    }

    void singlePointStitchIsARoundDot()
    {
        const Pattern pattern = polyline({{50, 50}, {50, 50}}, 0x808080);
        pattern->moveAbs(0, 0);
        pattern->moveAbs(100, 100);
        const QImage image = PreviewRenderer().render(pattern, 400.0);
        const QRgb centre = image.pixel(200, 200);
        QCOMPARE(qAlpha(centre), 255);
        const double expected = M_PI * 8.0 * 8.0;
        QVERIFY(qAbs(paintedPixels(image) - expected) < 0.1 * expected);
        QCOMPARE(image.pixel(195, 200), centre);
        QCOMPARE(image.pixel(200, 205), centre);
        QCOMPARE(qAlpha(image.pixel(207, 207)), 0);
    }

    void wayFromTheOriginIsClipped()
    {
        // Stitching without a move starts at the origin; that segment is clipped.
        const Pattern joined = EmbPattern::create();
        joined->stitchAbs(1000, 1000);
        joined->stitchAbs(1100, 1100);
        const QImage clipped = PreviewRenderer().render(joined, 400.0);
        QCOMPARE(clipped.size(), QSize(400, 400));
        QCOMPARE(qAlpha(clipped.pixel(200, 200)), 255);
    }

    void shadeColor_data()
    {
        const Rows<QColor, QVector3D, QColor> row("color", "normal", "expected");

        const QVector3D towards = QVector3D(-0.5f, -0.5f, 1.0f).normalized();
        const QVector3D away = -towards;
        // Facing away leaves the ambient 179/255 alone.
        row("away", QColor(255, 100, 0), away, QColor(179, 70, 0));
        row("towards clips", QColor(255, 100, 0), towards, QColor(255, 170, 0));
        row("upwards", QColor(100, 100, 100), QVector3D(0, 0, 1), QColor(151, 151, 151));
        row("alpha stays", QColor(100, 100, 100, 51), away, QColor(70, 70, 70, 51));
    }

    void shadeColor()
    {
        QFETCH(QColor, color);
        QFETCH(QVector3D, normal);
        QTEST(PreviewRenderer().shadeColor(color, normal), "expected");
    }
};

QTEST_MAIN(tst_PreviewRenderer)
#include "tst_previewrenderer.moc"
