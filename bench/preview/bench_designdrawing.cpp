#include "preview/drawing/DesignDrawing.h"
#include "preview/render/PreviewRenderer.h"
#include <QImage>
#include <QPainter>
#include <QtTest>

using Embroidery::EmbPattern;

namespace {

constexpr double Side = 1000.0; // tenths of a millimetre

/** A square of 100 mm, filled in rows of short stitches by so many in ten colours. */
QSharedPointer<EmbPattern> filledSquare(int stitches)
{
    const QSharedPointer<EmbPattern> pattern = EmbPattern::create();
    const int perColor = stitches / 10;
    const double rowStep = Side / (stitches / 40.0);
    for (int i = 0; i < stitches; ++i) {
        if (i % perColor == 0) {
            pattern->addThread(QSharedPointer<Embroidery::EmbThread>::create(
                unsigned(i * 7919), QString(), QString(), QString(), QString()));
            if (i != 0) {
                pattern->color_change();
            }
        }
        const int row = i / 40;
        const int column = row % 2 == 0 ? i % 40 : 39 - i % 40;
        pattern->stitchAbs(float(column * Side / 39), float(row * rowStep + (i % 2) * 4.0));
    }
    return pattern;
}

} // namespace

/** The whole of a large design, painted to fill a window. */
class bench_DesignDrawing : public QObject
{
    Q_OBJECT

private slots:
    void order()
    {
        const QSharedPointer<EmbPattern> pattern = filledSquare(60000);
        QBENCHMARK
        {
            SewingOrder order(pattern);
        }
    }

    void paint_data()
    {
        QTest::addColumn<int>("stitches");
        QTest::addColumn<int>("pixels");
        QTest::newRow("60,000 in 800 pixels") << 60000 << 800;
        QTest::newRow("60,000 in 2000 pixels") << 60000 << 2000;
        QTest::newRow("500,000 in 800 pixels") << 500000 << 800;
        QTest::newRow("60,000, a part of 16000 pixels") << 60000 << 16000;
    }

    void paint()
    {
        QFETCH(int, stitches);
        QFETCH(int, pixels);
        const auto order = QSharedPointer<SewingOrder>::create(filledSquare(stitches));
        const DesignDrawing drawing(order);
        const int side = qMin(pixels, 2000);
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(Qt::white);
        QBENCHMARK
        {
            drawing.paint(image, QPointF(), pixels / Side, drawing.everything());
        }
    }

    void plainLines()
    {
        const auto order = QSharedPointer<SewingOrder>::create(filledSquare(60000));
        const DesignDrawing drawing(order);
        QImage image(800, 800, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.scale(800 / Side, 800 / Side);
        painter.setRenderHint(QPainter::Antialiasing);
        QBENCHMARK
        {
            drawing.paint(painter, drawing.everything());
        }
    }

    /** What paint() would take if every stitch were a line of a painter. */
    void gradientPens()
    {
        const QSharedPointer<EmbPattern> pattern = filledSquare(60000);
        const QList<Embroidery::StitchBlock> blocks = pattern->asStitchBlock();
        QImage image(800, 800, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.scale(800 / Side, 800 / Side);
        painter.setRenderHint(QPainter::Antialiasing);
        PreviewRenderer renderer;
        QBENCHMARK_ONCE
        {
            for (const Embroidery::StitchBlock &block : blocks) {
                const QColor color(block.thread->getRGB());
                for (int i = 1; i < block.points.size(); ++i) {
                    QPointF from = block.points.at(i - 1);
                    renderer.drawThread(painter, from, block.points.at(i), color);
                }
            }
        }
    }
};

QTEST_MAIN(bench_DesignDrawing)
#include "bench_designdrawing.moc"
