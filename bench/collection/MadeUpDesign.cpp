#include "MadeUpDesign.h"

#include "Chance.h"
#include "Curve.h"
#include "Sewing.h"

#include <QColor>

#include <algorithm>

using Embroidery::EmbPattern;
using Embroidery::EmbThread;

namespace {

constexpr double MedianStitches = 5600;
constexpr double SpreadOfStitches = 0.85;
constexpr int FewestStitches = 500;
constexpr int MostStitches = 60000;
/** Square tenths of a millimetre that a stitch takes up in such designs. */
constexpr double AreaOfStitch = 150;

void flower(Sewing &sewing, Chance &chance, const QPointF &center, double size)
{
    const int petals = 5 + chance.below(5);
    const double first = chance.between(0, 360);
    for (int i = 0; i < petals; ++i) {
        const double angle = first + 360.0 / petals * i;
        sewing.petal(Curves::polar(center, angle, size * 0.2), angle, size * 0.8, size * 0.5);
    }
    sewing.dot(center, size * 0.2);
}

void blob(Sewing &sewing, Chance &chance, const QPointF &center, double size)
{
    Curve points;
    for (int i = 0; i < 7; ++i)
        points << Curves::polar(center, 360.0 / 7 * i, size * chance.between(0.55, 1.0));
    const Curve outline = Curves::closedSpline(points);
    sewing.fill(outline, chance.between(0, 180));
    sewing.run(outline);
}

void letter(Sewing &sewing, Chance &chance, const QPointF &center, double size)
{
    Curve points;
    for (int i = 0; i < 4; ++i)
        points << Curves::polar(center, chance.between(0, 360), size * chance.between(0.4, 1.0));
    sewing.stroke(Curves::spline(points), std::min(size * 0.3, 60.0));
}

/** Sews one thing at a place within @p radius of the middle. */
void sewSomething(Sewing &sewing, Chance &chance, double radius)
{
    const double size = std::max(40.0, radius * chance.between(0.12, 0.5));
    const double way = std::max(0.0, radius - size) * std::sqrt(chance.share());
    const QPointF center = Curves::polar({}, chance.between(0, 360), way);
    switch (chance.below(4)) {
    case 0:
        return flower(sewing, chance, center, size);
    case 1:
        return letter(sewing, chance, center, size);
    case 2:
        return sewing.leaf(center, chance.between(0, 360), size, size * 0.4);
    default:
        return blob(sewing, chance, center, size);
    }
}

unsigned int anyColor(Chance &chance)
{
    return QColor::fromHsv(chance.below(360), 60 + chance.below(196), 60 + chance.below(196)).rgb();
}

} // namespace

MadeUpDesign::Pattern MadeUpDesign::sew(Chance &chance)
{
    const int wanted = int(std::clamp<double>(chance.logNormal(MedianStitches, SpreadOfStitches),
                                              FewestStitches, MostStitches * 0.95));
    const double radius = std::sqrt(wanted * AreaOfStitch / 3.14 * chance.between(0.8, 1.5));
    const int stitchesOfThread = std::max(wanted / (2 + chance.below(10)), 100);
    Sewing sewing;
    int threads = 0;
    while (sewing.stitchCount() < wanted) {
        if (sewing.stitchCount() >= threads * stitchesOfThread) {
            ++threads;
            sewing.thread(anyColor(chance), QStringLiteral("Thread %1").arg(threads),
                          QString::number(1000 + threads));
        }
        sewSomething(sewing, chance, radius);
    }
    return sewing.finish(QStringLiteral("Design %1").arg(chance.below(100000)),
                         QStringLiteral("Made up"));
}

MadeUpDesign::Pattern MadeUpDesign::relative(const EmbPattern &design, int member)
{
    const Pattern copy = EmbPattern::create();
    const auto threads = design.threadList();
    for (const auto &thread : threads) {
        const QColor color = QColor(thread->getRGB()).toHsv();
        const QColor turned =
            QColor::fromHsv((color.hue() + 45 * member) % 360, color.saturation(), color.value());
        copy->addThread(QSharedPointer<EmbThread>::create(turned.rgb(), thread->getDescription(),
                                                          thread->getCatalogNumber(),
                                                          thread->getBrand(), thread->getChart()));
    }
    for (int i = 0; i < design.size(); ++i) {
        float x = design.getX(i);
        float y = design.getY(i);
        if (member & 1)
            x = -x;
        if (member & 2)
            y = -y;
        if (member & 4)
            std::swap(x, y);
        copy->addStitchAbs(x, y, design.getData(i));
    }
    copy->setName(design.getName());
    copy->setAuthor(QStringLiteral("Hoopline"));
    return copy;
}
