#include "Curve.h"
#include "Designs.h"
#include "Threads.h"

#include <algorithm>
#include <cmath>

using namespace Curves;
using namespace Threads;

namespace {

const QString Category = QStringLiteral("Animals");

QSharedPointer<Embroidery::EmbPattern> fish()
{
    const Curve body = closedSpline({{-230, 0},
                                     {-170, -80},
                                     {-50, -122},
                                     {90, -96},
                                     {190, -28},
                                     {190, 28},
                                     {90, 92},
                                     {-50, 118},
                                     {-170, 80}});
    Sewing sewing;
    use(sewing, Amber);
    for (int i = 0; i < 5; ++i)
        sewing.petal({172, i * 6.0 - 12}, -44 + i * 22, 160, 56);
    sewing.satin(spline({{-80, -112}, {0, -118}, {90, -92}}),
                 spline({{-40, -150}, {40, -196}, {130, -130}}));
    sewing.satin(spline({{-40, 112}, {20, 112}, {80, 92}}),
                 spline({{0, 150}, {60, 172}, {110, 130}}));
    use(sewing, Coral);
    sewing.fill(body, 0);
    use(sewing, Butter);
    for (const double x : {-60.0, 30.0, 115.0}) {
        const double half = 106 - std::abs(x + 30) * 0.3;
        sewing.satin(spline({{x - 16, -half}, {x - 40, 0}, {x - 16, half}}),
                     spline({{x + 14, -half}, {x - 8, 0}, {x + 14, half}}));
    }
    use(sewing, Amber);
    sewing.petal({-70, 16}, 24, 96, 54);
    use(sewing, Ivory);
    sewing.dot({-158, -22}, 22);
    use(sewing, Ink);
    sewing.dot({-162, -22}, 11);
    sewing.run(spline({{-224, 26}, {-200, 30}, {-184, 22}}), 16);
    return sewing.finish(QStringLiteral("Fish"), Category);
}

QSharedPointer<Embroidery::EmbPattern> cat()
{
    Sewing sewing;
    use(sewing, Slate);
    sewing.stroke(spline({{92, 226}, {190, 232}, {226, 150}, {182, 74}, {212, 10}}), 40);
    sewing.fill(closedSpline({{0, -40},
                              {86, 20},
                              {124, 150},
                              {104, 250},
                              {0, 264},
                              {-104, 250},
                              {-124, 150},
                              {-86, 20}}),
                90);
    sewing.fill(closed({{-112, -132}, {-122, -262}, {-28, -208}}), 60);
    sewing.fill(closed({{112, -132}, {122, -262}, {28, -208}}), 120);
    sewing.fill(closedSpline({{0, -226},
                              {92, -196},
                              {130, -118},
                              {96, -38},
                              {0, -10},
                              {-96, -38},
                              {-130, -118},
                              {-92, -196}}),
                0);
    use(sewing, Blush);
    sewing.fill(closed({{-100, -164}, {-108, -236}, {-54, -202}}), 60);
    sewing.fill(closed({{100, -164}, {108, -236}, {54, -202}}), 120);
    use(sewing, Silver);
    sewing.fill(closedSpline({{0, 6}, {54, 60}, {62, 160}, {0, 220}, {-62, 160}, {-54, 60}}), 90);
    sewing.dot({-52, 250}, 30);
    sewing.dot({52, 250}, 30);
    sewing.dot({-24, -66}, 30);
    sewing.dot({24, -66}, 30);
    use(sewing, Lime);
    sewing.dot({-52, -124}, 25);
    sewing.dot({52, -124}, 25);
    use(sewing, Ink);
    sewing.petal({-52, -146}, 90, 44, 18);
    sewing.petal({52, -146}, 90, 44, 18);
    for (const double side : {-1.0, 1.0}) {
        for (const double rise : {-14.0, 4.0, 22.0})
            sewing.run({{side * 44, -66 + rise * 0.4}, {side * 150, -70 + rise * 1.6}});
    }
    use(sewing, Coral);
    sewing.satin({{-18, -92}, {0, -68}}, {{18, -92}, {0, -68}});
    return sewing.finish(QStringLiteral("Cat"), Category);
}

QSharedPointer<Embroidery::EmbPattern> butterfly()
{
    const Curve upper = closedSpline(
        {{10, -20}, {70, -150}, {180, -214}, {250, -170}, {228, -70}, {130, -6}, {40, 10}});
    const Curve lower =
        closedSpline({{10, 10}, {110, 8}, {196, 70}, {186, 160}, {110, 196}, {50, 120}});
    Sewing sewing;
    use(sewing, Teal);
    sewing.fill(lower, 40);
    sewing.fill(mirrored(lower), -40);
    use(sewing, Royal);
    sewing.fill(upper, -35);
    sewing.fill(mirrored(upper), 35);
    use(sewing, Navy);
    for (const Curve &wing : {lower, upper}) {
        sewing.stroke(wing, 16);
        sewing.stroke(mirrored(wing), 16);
    }
    use(sewing, Gold);
    for (const double side : {0.0, 180.0}) {
        const double sign = side > 0 ? -1 : 1;
        sewing.petal({sign * 60, -40}, side - sign * 48, 120, 46);
        sewing.petal({sign * 60, 40}, side + sign * 42, 92, 40);
        sewing.dot({sign * 196, -112}, 21);
        sewing.dot({sign * 140, 146}, 15);
    }
    use(sewing, Cocoa);
    sewing.petal({0, 150}, -90, 260, 44);
    sewing.dot({0, -112}, 22);
    sewing.run(spline({{-6, -130}, {-20, -180}, {-62, -214}}), 14);
    sewing.run(spline({{6, -130}, {20, -180}, {62, -214}}), 14);
    return sewing.finish(QStringLiteral("Butterfly"), Category);
}

QSharedPointer<Embroidery::EmbPattern> robin()
{
    Sewing sewing;
    use(sewing, Walnut);
    sewing.stroke(spline({{-270, 196}, {-120, 172}, {60, 190}, {270, 150}}), 20);
    use(sewing, Leaf);
    sewing.leaf({150, 168}, -52, 92, 40);
    sewing.leaf({-190, 184}, -128, 84, 38);
    sewing.leaf({205, 160}, 34, 84, 36);
    use(sewing, Cocoa);
    sewing.satin({{90, 60}, {160, 96}, {226, 132}}, {{120, 0}, {190, 66}, {250, 112}});
    sewing.run({{-24, 120}, {-30, 176}}, 10);
    sewing.run({{16, 124}, {12, 180}}, 10);
    use(sewing, Cinnamon);
    sewing.fill(closedSpline({{-120, -150},
                              {-40, -196},
                              {40, -150},
                              {112, -40},
                              {134, 50},
                              {70, 118},
                              {-30, 130},
                              {-120, 70},
                              {-150, -40}}),
                30);
    use(sewing, Ivory);
    sewing.fill(closedSpline({{-112, 60}, {-40, 50}, {40, 84}, {20, 122}, {-40, 128}, {-92, 100}}),
                0);
    use(sewing, Coral);
    sewing.fill(closedSpline({{-136, -104},
                              {-90, -150},
                              {-44, -110},
                              {-30, -20},
                              {-50, 58},
                              {-108, 64},
                              {-148, -10}}),
                75);
    use(sewing, Walnut);
    for (int i = 0; i < 4; ++i)
        sewing.petal({10.0 + 8 * i, -52.0 + 22 * i}, 34 + 4 * i, 140 - 12 * i, 44);
    use(sewing, Gold);
    sewing.satin({{-126, -136}, {-184, -112}}, {{-140, -98}, {-184, -112}});
    use(sewing, Ink);
    sewing.dot({-86, -144}, 13);
    return sewing.finish(QStringLiteral("Robin"), Category);
}

QSharedPointer<Embroidery::EmbPattern> whale()
{
    Sewing sewing;
    use(sewing, Royal);
    sewing.petal({196, -40}, -62, 150, 62);
    sewing.petal({196, -40}, -8, 130, 58);
    sewing.fill(closedSpline({{-240, 20},
                              {-214, -70},
                              {-110, -124},
                              {20, -104},
                              {120, -40},
                              {200, -56},
                              {196, 0},
                              {120, 90},
                              {-20, 128},
                              {-160, 112}}),
                0);
    use(sewing, Ice);
    sewing.fill(
        closedSpline({{-232, 46}, {-150, 56}, {-40, 50}, {70, 100}, {-20, 130}, {-150, 116}}), 0);
    use(sewing, Royal);
    for (int i = 0; i < 4; ++i)
        sewing.run(
            spline({{-190.0 + 14 * i, 68.0 + 13 * i}, {-100, 66.0 + 14 * i}, {0, 66.0 + 14 * i}}));
    use(sewing, Navy);
    sewing.petal({-60, 60}, 62, 110, 52);
    sewing.dot({-176, -16}, 12);
    sewing.run(spline({{-226, 34}, {-170, 42}, {-130, 28}}), 16);
    use(sewing, Sky);
    for (const double bend : {-80.0, 0.0, 80.0})
        sewing.stroke(spline({{-110, -134},
                              {-110 + bend * 0.3, -190},
                              {-110 + bend, -196},
                              {-110 + bend * 1.3, bend == 0 ? -230.0 : -160.0}}),
                      12);
    use(sewing, Teal);
    for (int row = 0; row < 2; ++row) {
        Curve wave;
        for (int i = 0; i <= 12; ++i)
            wave << QPointF(-250 + i * 42 + row * 20, 166 + row * 34 + (i % 2 ? 14 : -8));
        sewing.stroke(spline(wave), 13);
    }
    return sewing.finish(QStringLiteral("Whale"), Category);
}

} // namespace

QVector<SampleMaker> animals()
{
    return {butterfly, cat, fish, robin, whale};
}
