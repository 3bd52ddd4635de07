#include "preview/render/PreviewRenderer.h"
#include <cmath>
#include <QtTest>

using Embroidery::EmbPattern;

/** A filled circle of a hundred thousand short stitches, ten times a large design. */
class bench_PreviewRenderer : public QObject
{
    Q_OBJECT

private slots:
    void render()
    {
        const QSharedPointer<EmbPattern> pattern = EmbPattern::create();
        for (int i = 0; i < 100000; ++i) {
            const double angle = i * 0.05;
            const double radius = i * 0.01;
            pattern->stitchAbs(float(radius * std::cos(angle)), float(radius * std::sin(angle)));
        }
        QBENCHMARK
        {
            PreviewRenderer().render(pattern, 400.0);
        }
    }
};

QTEST_MAIN(bench_PreviewRenderer)
#include "bench_previewrenderer.moc"
