#include "Curve.h"
#include "Designs.h"
#include "Threads.h"

#include <algorithm>
#include <cmath>

using namespace Curves;
using namespace Threads;

namespace {

const QString Category = QStringLiteral("Flowers");

/** A petal of a rose: a crescent between two bulging edges. */
void crescent(Sewing &sewing, double from, double to, double inner, double outer)
{
    Curve low;
    Curve high;
    const int count = 20;
    for (int i = 0; i <= count; ++i) {
        const double t = double(i) / count;
        const double bulge = 4 * t * (1 - t);
        const double angle = from + (to - from) * t;
        low << polar(QPointF(0, -130), angle, inner);
        high << polar(QPointF(0, -130), angle, inner + 6 + (outer - inner) * (0.25 + 0.75 * bulge));
    }
    sewing.satin(low, high);
}

QSharedPointer<Embroidery::EmbPattern> rose()
{
    Sewing sewing;
    use(sewing, Forest);
    sewing.stroke(spline({{8, 330}, {-6, 220}, {6, 110}, {0, 10}}), 15);
    use(sewing, Leaf);
    sewing.leaf({2, 170}, 212, 150, 74);
    sewing.leaf({0, 240}, -30, 150, 74);
    const Thread rings[] = {Wine, Crimson, Rose, Coral, Blush};
    const double radii[] = {112, 84, 58, 34, 14};
    for (int ring = 0; ring < 5; ++ring) {
        use(sewing, rings[ring]);
        const int petals = ring < 3 ? 5 : 3;
        for (int i = 0; i < petals; ++i) {
            const double at = ring * 37 - 90 + 360.0 / petals * i;
            const double half = 360.0 / petals * 0.62;
            crescent(sewing, at - half, at + half, radii[ring], radii[ring] + (ring < 3 ? 44 : 30));
        }
    }
    use(sewing, Crimson);
    sewing.dot({0, -130}, 15);
    return sewing.finish(QStringLiteral("Rose"), Category);
}

QSharedPointer<Embroidery::EmbPattern> sunflower()
{
    Sewing sewing;
    use(sewing, Amber);
    for (int i = 0; i < 16; ++i)
        sewing.petal(polar({}, i * 22.5 + 11.25, 110), i * 22.5 + 11.25, 150, 62);
    use(sewing, Gold);
    for (int i = 0; i < 16; ++i)
        sewing.petal(polar({}, i * 22.5, 100), i * 22.5, 140, 60);
    use(sewing, Walnut);
    sewing.fill(circle({}, 122), 30);
    use(sewing, Cocoa);
    sewing.fill(circle({}, 76), -40);
    use(sewing, Cinnamon);
    for (int i = 1; i < 44; ++i)
        sewing.run(circle(polar({}, i * 137.508, 16.2 * std::sqrt(i)), 3), 3);
    return sewing.finish(QStringLiteral("Sunflower"), Category);
}

QSharedPointer<Embroidery::EmbPattern> tulip()
{
    Sewing sewing;
    use(sewing, Forest);
    sewing.stroke(spline({{0, 300}, {-8, 190}, {4, 90}, {0, 0}}), 16);
    use(sewing, Leaf);
    const Curve inner = spline({{-4, 290}, {-40, 200}, {-70, 110}, {-104, 20}});
    const Curve outer = spline({{-4, 298}, {-96, 250}, {-128, 140}, {-104, 20}});
    sewing.satin(inner, outer);
    use(sewing, Lime);
    sewing.satin(mirrored(inner), mirrored(outer));
    use(sewing, Wine);
    sewing.petal({0, 8}, -90, 250, 150);
    use(sewing, Rose);
    const Curve left = spline({{0, 14}, {-86, -20}, {-112, -120}, {-92, -250}});
    const Curve right = spline({{0, 14}, {-16, -60}, {-40, -150}, {-92, -250}});
    sewing.satin(left, right);
    sewing.satin(mirrored(left), mirrored(right));
    use(sewing, Coral);
    sewing.satin(spline({{0, 18}, {-50, -30}, {-58, -110}, {0, -205}}),
                 spline({{0, 18}, {50, -30}, {58, -110}, {0, -205}}));
    return sewing.finish(QStringLiteral("Tulip"), Category);
}

void cornflower(Sewing &sewing, const QPointF &center, double size)
{
    for (int i = 0; i < 9; ++i)
        sewing.petal(polar(center, i * 40.0, size * 0.16), i * 40.0, size, size * 0.5);
}

QSharedPointer<Embroidery::EmbPattern> cornflowers()
{
    const QPointF heads[] = {{-120, -110}, {10, -190}, {125, -80}};
    Sewing sewing;
    use(sewing, Forest);
    for (const QPointF &head : heads)
        sewing.stroke(
            spline({{0, 260}, {head.x() * 0.15, 140}, {head.x() * 0.7, head.y() + 130}, head}), 10);
    use(sewing, Leaf);
    sewing.leaf({-10, 180}, 200, 130, 34);
    sewing.leaf({10, 150}, -22, 130, 34);
    sewing.leaf({-2, 215}, -50, 110, 30);
    use(sewing, Royal);
    for (const QPointF &head : heads)
        cornflower(sewing, head, 92);
    use(sewing, Sky);
    for (const QPointF &head : heads)
        cornflower(sewing, head, 52);
    use(sewing, Plum);
    for (const QPointF &head : heads)
        sewing.dot(head, 17);
    return sewing.finish(QStringLiteral("Cornflowers"), Category);
}

QSharedPointer<Embroidery::EmbPattern> fern()
{
    Sewing sewing;
    const Curve stem = resampled(spline({{-110, 300}, {-40, 160}, {20, 0}, {40, -300}}), 10);
    use(sewing, Walnut);
    sewing.stroke(stem, 11);
    const Thread greens[] = {Spruce, Forest, Leaf, Lime};
    for (int i = 1; i < 10; ++i) {
        if (i == 1 || i == 4 || i == 6 || i == 8)
            use(sewing, greens[i == 1 ? 0 : i / 2 - 1]);
        const QPointF along = stem[i + 1 > 10 ? 10 : i + 1] - stem[i - 1];
        const double heading = std::atan2(along.y(), along.x()) * 180 / 3.14159265358979323846;
        const double size = 175 - 12 * i;
        sewing.leaf(stem[i], heading - 52, size, size * 0.36);
        sewing.leaf(stem[i], heading + 52, size, size * 0.36);
    }
    sewing.leaf(stem[10], -86, 90, 34);
    return sewing.finish(QStringLiteral("Fern"), Category);
}

} // namespace

QVector<SampleMaker> flowers()
{
    return {rose, sunflower, tulip, cornflowers, fern};
}
