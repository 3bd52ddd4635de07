#include "Curve.h"
#include "Designs.h"
#include "Threads.h"

#include <algorithm>
#include <cmath>

using namespace Curves;
using namespace Threads;

namespace {

const QString Category = QStringLiteral("Shapes");

QSharedPointer<Embroidery::EmbPattern> star()
{
    Sewing sewing;
    const auto corner = [](int i) { return polar({0, 14}, -90 + i * 36, i % 2 ? 108 : 260); };
    for (const bool light : {false, true}) {
        use(sewing, light ? Gold : Amber);
        for (int i = light ? 0 : 1; i < 10; i += 2) {
            const QPointF tip = i % 2 ? corner(i + 1) : corner(i);
            const QPointF notch = i % 2 ? corner(i) : corner(i + 1);
            sewing.satin({QPointF(0, 14), tip}, {notch, tip});
        }
    }
    use(sewing, Cinnamon);
    Curve outline;
    for (int i = 0; i < 10; ++i)
        outline << corner(i);
    sewing.stroke(closed(outline), 11);
    return sewing.finish(QStringLiteral("Star"), Category);
}

QSharedPointer<Embroidery::EmbPattern> heart()
{
    Curve right =
        spline({{0, -70}, {62, -160}, {150, -178}, {222, -110}, {196, 10}, {100, 118}, {0, 214}});
    Curve left = mirrored(right);
    std::reverse(left.begin(), left.end());
    const Curve outline = right + left.mid(1);
    Curve inner;
    for (const QPointF &point : outline)
        inner << QPointF(point.x() * 0.8, point.y() * 0.8 + 2);
    Sewing sewing;
    use(sewing, Crimson);
    sewing.fill(outline, 25);
    use(sewing, Blush);
    sewing.run(inner, 26);
    for (int i = 0; i < 5; ++i)
        sewing.petal(polar({0, 6}, i * 72 - 90, 14), i * 72 - 90, 66, 44);
    use(sewing, Gold);
    sewing.dot({0, 6}, 17);
    use(sewing, Wine);
    sewing.stroke(outline, 24);
    return sewing.finish(QStringLiteral("Heart"), Category);
}

QSharedPointer<Embroidery::EmbPattern> snowflake()
{
    Sewing sewing;
    use(sewing, Ice);
    for (int arm = 0; arm < 6; ++arm)
        sewing.petal(polar({}, arm * 60 + 30.0, 26), arm * 60 + 30, 96, 40);
    use(sewing, Sky);
    for (int arm = 0; arm < 6; ++arm) {
        const double degrees = arm * 60;
        sewing.stroke({polar({}, degrees, 20), polar({}, degrees, 262)}, 17);
        for (const double at : {110.0, 172.0, 222.0}) {
            for (const double side : {-58.0, 58.0}) {
                const QPointF foot = polar({}, degrees, at);
                sewing.stroke({foot, polar(foot, degrees + side, 120 - at * 0.34)}, 13);
            }
        }
    }
    use(sewing, Royal);
    Curve ring;
    for (int i = 0; i < 6; ++i)
        ring << polar({}, i * 60, 66);
    sewing.stroke(closed(ring), 13);
    for (int arm = 0; arm < 6; ++arm)
        sewing.dot(polar({}, arm * 60, 266), 13);
    sewing.dot({}, 24);
    return sewing.finish(QStringLiteral("Snowflake"), Category);
}

QSharedPointer<Embroidery::EmbPattern> anchor()
{
    Sewing sewing;
    use(sewing, Navy);
    sewing.stroke(circle({0, -206}, 38), 22);
    sewing.satin({{-15, -164}, {-18, 206}}, {{15, -164}, {18, 206}});
    sewing.satin({{-116, -126}, {116, -126}}, {{-116, -96}, {116, -96}});
    sewing.stroke(arc({0, 50}, 182, 166, 172, 8), 34);
    sewing.satin({{-238, 96}, {-190, 4}}, {{-130, 108}, {-190, 4}});
    sewing.satin({{238, 96}, {190, 4}}, {{130, 108}, {190, 4}});
    sewing.dot({-122, -111}, 24);
    sewing.dot({122, -111}, 24);
    use(sewing, Crimson);
    const Curve rope = spline({{28, -232},
                               {120, -190},
                               {60, -60},
                               {-70, 0},
                               {-90, 80},
                               {40, 110},
                               {120, 60},
                               {190, 120},
                               {150, 240}});
    sewing.stroke(rope, 20);
    use(sewing, Ivory);
    for (const QPointF &point : resampledByStep(rope, 21))
        sewing.run({point + QPointF(-5, 5), point + QPointF(5, -5)}, 14);
    return sewing.finish(QStringLiteral("Anchor"), Category);
}

QSharedPointer<Embroidery::EmbPattern> sun()
{
    Sewing sewing;
    use(sewing, Amber);
    for (int i = 0; i < 12; ++i) {
        const double at = i * 30 + 15;
        sewing.satin(
            spline({polar({}, at - 9, 140), polar({}, at - 2, 190), polar({}, at + 10, 238)}),
            spline({polar({}, at + 8, 140), polar({}, at + 12, 190), polar({}, at + 11, 240)}));
    }
    use(sewing, Gold);
    for (int i = 0; i < 12; ++i)
        sewing.petal(polar({}, i * 30.0, 132), i * 30, 136, 44);
    sewing.fill(circle({}, 124), 0);
    use(sewing, Coral);
    sewing.stroke(circle({}, 124), 14);
    sewing.dot({-66, 28}, 20);
    sewing.dot({66, 28}, 20);
    use(sewing, Cocoa);
    sewing.stroke(arc({-42, -22}, 20, 18, 200, 340), 9);
    sewing.stroke(arc({42, -22}, 20, 18, 200, 340), 9);
    sewing.stroke(arc({0, 12}, 52, 50, 25, 155), 11);
    return sewing.finish(QStringLiteral("Sun"), Category);
}

QSharedPointer<Embroidery::EmbPattern> tree()
{
    Sewing sewing;
    use(sewing, Walnut);
    sewing.satin({{-26, 186}, {-30, 276}}, {{26, 186}, {30, 276}});
    const Thread greens[] = {Spruce, Forest, Leaf};
    for (int tier = 0; tier < 3; ++tier) {
        const double top = 10 - tier * 104;
        const double bottom = 200 - tier * 112;
        const double half = 186 - tier * 38;
        use(sewing, greens[tier]);
        const Curve edge = spline({{half, bottom - 8},
                                   {half * 0.6, bottom + 10},
                                   {half * 0.3, bottom - 4},
                                   {0, bottom + 14},
                                   {-half * 0.3, bottom - 4},
                                   {-half * 0.6, bottom + 10},
                                   {-half, bottom - 8}});
        sewing.satin(Curve{{half * 0.12, top}, {-half * 0.12, top}}, edge);
    }
    use(sewing, Crimson);
    for (const QPointF &at : {QPointF(-96, 168), QPointF(20, 178), QPointF(112, 160),
                              QPointF(-52, 66), QPointF(62, 58), QPointF(4, -46)})
        sewing.dot(at, 16);
    use(sewing, Gold);
    for (const QPointF &at :
         {QPointF(-40, 150), QPointF(72, 128), QPointF(8, 82), QPointF(-34, -30)})
        sewing.dot(at, 13);
    for (int i = 0; i < 5; ++i)
        sewing.petal({0, -226}, i * 72 - 90, 54, 30);
    return sewing.finish(QStringLiteral("Tree"), Category);
}

QSharedPointer<Embroidery::EmbPattern> mandala()
{
    Sewing sewing;
    use(sewing, Plum);
    for (int i = 0; i < 12; ++i)
        sewing.leaf(polar({}, i * 30.0 + 15, 160), i * 30 + 15, 120, 62);
    use(sewing, Violet);
    for (int i = 0; i < 12; ++i)
        sewing.petal(polar({}, i * 30.0, 132), i * 30, 116, 58);
    use(sewing, Teal);
    sewing.stroke(circle({}, 142), 16);
    for (int i = 0; i < 12; ++i)
        sewing.dot(polar({}, i * 30.0, 262), 12);
    use(sewing, Rose);
    for (int i = 0; i < 8; ++i)
        sewing.petal(polar({}, i * 45.0, 42), i * 45, 92, 60);
    use(sewing, Gold);
    for (int i = 0; i < 8; ++i)
        sewing.dot(polar({}, i * 45 + 22.5, 112), 10);
    for (int i = 0; i < 8; ++i)
        sewing.petal(polar({}, i * 45 + 22.5, 14), i * 45 + 22.5, 52, 26);
    use(sewing, Plum);
    sewing.dot({}, 22);
    return sewing.finish(QStringLiteral("Mandala"), Category);
}

QSharedPointer<Embroidery::EmbPattern> border()
{
    Sewing sewing;
    Curve wave;
    for (int i = 0; i <= 8; ++i)
        wave << QPointF(-480 + i * 120, i % 2 ? 42 : -42);
    const Curve vine = spline(wave);
    use(sewing, Forest);
    sewing.stroke(vine, 11);
    use(sewing, Leaf);
    const Curve places = resampled(vine, 24);
    for (int i = 1; i < 24; i += 3)
        sewing.leaf(places[i], i % 2 ? -50 : 50, 70, 32);
    for (int i = 2; i < 24; i += 3)
        sewing.leaf(places[i], i % 2 ? -130 : 130, 60, 28);
    use(sewing, Coral);
    for (int i = 1; i < 8; ++i) {
        for (int k = 0; k < 5; ++k)
            sewing.petal(QPointF(-480 + i * 120, i % 2 ? -46 : 46), k * 72 - 90, 44, 34);
    }
    use(sewing, Gold);
    for (int i = 1; i < 8; ++i)
        sewing.dot({-480.0 + i * 120, i % 2 ? -46.0 : 46.0}, 13);
    use(sewing, Teal);
    for (const double y : {-128.0, 128.0}) {
        sewing.satin({{-490, y - 6}, {490, y - 6}}, {{-490, y + 6}, {490, y + 6}});
        sewing.run({{-490, y * 0.86}, {490, y * 0.86}}, 25);
    }
    return sewing.finish(QStringLiteral("Border"), Category);
}

QSharedPointer<Embroidery::EmbPattern> mountains()
{
    Sewing sewing;
    use(sewing, Ice);
    Curve sky = arc({}, 240, 240, 170, 370);
    sewing.fill(closed(sky), 0);
    use(sewing, Butter);
    sewing.dot({96, -118}, 52);
    use(sewing, Violet);
    sewing.fill(closed({{-238, 44},
                        {-196, -10},
                        {-120, -96},
                        {-58, -30},
                        {30, -124},
                        {140, 0},
                        {190, -30},
                        {238, 44}}),
                65);
    use(sewing, Ivory);
    sewing.fill(
        closed({{-146, -68}, {-120, -98}, {-94, -68}, {-108, -58}, {-122, -72}, {-134, -56}}), 0);
    sewing.fill(closed({{-4, -86}, {30, -126}, {64, -86}, {46, -72}, {32, -90}, {14, -70}}), 0);
    use(sewing, Forest);
    sewing.fill(closed(spline({{-240, 30}, {-150, 4}, {-40, 50}, {70, 12}, {160, 46}, {240, 24}}) +
                       arc({}, 240, 240, 6, 174)),
                20);
    use(sewing, Spruce);
    for (const QPointF &foot :
         {QPointF(-150, 92), QPointF(-96, 118), QPointF(120, 96), QPointF(170, 74)}) {
        for (int tier = 0; tier < 3; ++tier)
            sewing.satin({foot + QPointF(0, -62 - tier * 22),
                          foot + QPointF(-32 + tier * 6, -16 - tier * 24)},
                         {foot + QPointF(0, -62 - tier * 22),
                          foot + QPointF(32 - tier * 6, -16 - tier * 24)});
        sewing.stroke({foot + QPointF(0, -16), foot}, 10);
    }
    use(sewing, Sky);
    sewing.satin(spline({{34, 36}, {-24, 96}, {44, 150}, {-44, 232}}),
                 spline({{48, 36}, {8, 96}, {108, 150}, {70, 228}}));
    use(sewing, Walnut);
    sewing.stroke(circle({}, 240), 30);
    use(sewing, Gold);
    sewing.run(circle({}, 240), 26);
    return sewing.finish(QStringLiteral("Mountains"), Category);
}

} // namespace

QVector<SampleMaker> shapes()
{
    return {anchor, border, heart, mandala, mountains, snowflake, star, sun, tree};
}
