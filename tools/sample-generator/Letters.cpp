#include "Curve.h"
#include "Designs.h"
#include "Threads.h"

#include <algorithm>
#include <cmath>

using namespace Curves;
using namespace Threads;

namespace {

const QString Category = QStringLiteral("Letters");

/** A heart whose dip lies at @p center and whose half width is @p size. */
Curve heart(const QPointF &center, double size)
{
    Curve right = spline({{0, 0},
                          {0.28, -0.38},
                          {0.66, -0.46},
                          {0.98, -0.16},
                          {0.86, 0.34},
                          {0.44, 0.8},
                          {0, 1.18}});
    Curve left = mirrored(right);
    std::reverse(left.begin(), left.end());
    Curve whole;
    for (const QPointF &point : right + left)
        whole << center + point * size;
    return whole;
}

QSharedPointer<Embroidery::EmbPattern> hello()
{
    const double width = 26;
    Sewing sewing;
    use(sewing, Teal);
    sewing.stroke({{-300, -150}, {-300, 90}}, width);
    sewing.stroke(arc({-246, 8}, 54, 56, 180, 360) + Curve{{-192, 90}}, width);
    use(sewing, Petrol);
    sewing.stroke(Curve{{-136, 22}, {-92, 22}, {-36, 22}} + arc({-86, 22}, 52, 64, 350, 45), width);
    use(sewing, Coral);
    sewing.stroke({{28, -150}, {28, 90}}, width);
    use(sewing, Gold);
    sewing.stroke({{96, -150}, {96, 90}}, width);
    use(sewing, Rose);
    sewing.stroke(arc({214, 26}, 60, 62, -90, 270), width);
    use(sewing, Leaf);
    sewing.stroke(spline({{-290, 168}, {-160, 138}, {-20, 170}, {120, 140}, {262, 164}}), 12);
    sewing.leaf({-170, 142}, -32, 66, 30);
    sewing.leaf({-90, 152}, 40, 66, 30);
    sewing.leaf({90, 144}, -28, 66, 30);
    sewing.leaf({170, 146}, 42, 66, 30);
    return sewing.finish(QStringLiteral("Hello"), Category);
}

QSharedPointer<Embroidery::EmbPattern> love()
{
    const double width = 30;
    Sewing sewing;
    use(sewing, Plum);
    sewing.stroke({{-290, -130}, {-290, 100}, {-180, 100}}, width);
    use(sewing, Rose);
    sewing.fill(heart({-78, -52}, 92), 30);
    use(sewing, Wine);
    sewing.stroke(heart({-78, -52}, 92), 13);
    use(sewing, Plum);
    sewing.stroke({{44, -66}, {104, 96}, {164, -66}}, width);
    sewing.stroke(Curve{{206, 20}, {250, 20}, {318, 20}} + arc({262, 20}, 57, 78, 352, 48), width);
    use(sewing, Lilac);
    for (int i = 0; i < 15; ++i)
        sewing.dot({-292.0 + i * 43, 160}, i % 2 ? 6 : 10);
    return sewing.finish(QStringLiteral("Love"), Category);
}

QSharedPointer<Embroidery::EmbPattern> monogram()
{
    Sewing sewing;
    use(sewing, Forest);
    sewing.stroke(arc({}, 270, 270, 118, 422), 8);
    use(sewing, Leaf);
    for (int i = 0; i < 14; ++i) {
        const double left = 120 + i * 10.6;
        sewing.leaf(polar({}, left, 270), left + (i % 2 ? 52 : 124), 62, 27);
        const double right = 60 - i * 10.6;
        sewing.leaf(polar({}, right, 270), right - (i % 2 ? 52 : 124), 62, 27);
    }
    use(sewing, Crimson);
    for (int i = 1; i < 14; i += 3) {
        sewing.dot(polar({}, 125 + i * 10.6, 244), 11);
        sewing.dot(polar({}, 55 - i * 10.6, 244), 11);
    }
    use(sewing, Navy);
    for (const double x : {-86.0, 86.0}) {
        sewing.satin({{x - 20, -150}, {x - 20, 150}}, {{x + 20, -150}, {x + 20, 150}});
        for (const double y : {-150.0, 150.0})
            sewing.satin({{x - 50, y - 7}, {x + 50, y - 7}}, {{x - 50, y + 7}, {x + 50, y + 7}});
    }
    sewing.satin({{-70, -11}, {70, -11}}, {{-70, 11}, {70, 11}});
    use(sewing, Gold);
    for (const double x : {-86.0, 86.0})
        sewing.run({{x, -136}, {x, 136}}, 20);
    sewing.dot({0, 0}, 22);
    return sewing.finish(QStringLiteral("Monogram"), Category);
}

Curve block(double x, double y, double half)
{
    const double bend = half * 0.9;
    return closedSpline({{x - half, y - bend},
                         {x - bend, y - half},
                         {x, y - half},
                         {x + bend, y - half},
                         {x + half, y - bend},
                         {x + half, y},
                         {x + half, y + bend},
                         {x + bend, y + half},
                         {x, y + half},
                         {x - bend, y + half},
                         {x - half, y + bend},
                         {x - half, y}});
}

QSharedPointer<Embroidery::EmbPattern> alphabet()
{
    const Thread grounds[] = {Butter, Mint, Blush};
    const Thread edges[] = {Amber, Teal, Rose};
    const double places[] = {-206, 0, 206};
    const double heights[] = {30, -34, 30};
    const double width = 24;
    Sewing sewing;
    for (int i = 0; i < 3; ++i) {
        const double x = places[i];
        const double y = heights[i];
        use(sewing, grounds[i]);
        sewing.fill(block(x, y, 100), 45 - 45 * i);
        use(sewing, edges[i]);
        sewing.stroke(block(x, y, 100), 15);
        if (i == 0) {
            sewing.stroke({{x - 52, y + 62}, {x, y - 62}, {x + 52, y + 62}}, width);
            sewing.stroke({{x - 30, y + 22}, {x + 30, y + 22}}, 18);
        } else if (i == 1) {
            sewing.stroke({{x - 38, y - 62}, {x - 38, y + 62}}, width);
            sewing.stroke(Curve{{x - 38, y - 56}} + arc({x, y - 28}, 32, 28, -90, 90) +
                              Curve{{x - 38, y}},
                          20);
            sewing.stroke(Curve{{x - 38, y}} + arc({x + 4, y + 29}, 38, 29, -90, 90) +
                              Curve{{x - 38, y + 58}},
                          20);
        } else {
            sewing.stroke(arc({x + 6, y}, 54, 58, -48, -312), width);
        }
    }
    return sewing.finish(QStringLiteral("Alphabet"), Category);
}

} // namespace

QVector<SampleMaker> letters()
{
    return {alphabet, hello, love, monogram};
}
