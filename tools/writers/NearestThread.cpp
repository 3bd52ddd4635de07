#include "writers/NearestThread.h"

#include <QColor>

#include <cmath>
#include <limits>

using Embroidery::EmbThread;

namespace DesignWriters {

namespace {

constexpr double LightnessWeight = 0.9;
constexpr double ChromaWeight = 0.4;
constexpr double HueWeight = 2.2;
/** What a grey costs in the place of a colour; chroma beyond the one limit is a colour, below the
    other it is a grey. */
constexpr double GreyPenalty = 2500;
constexpr double ColorChroma = 14;
constexpr double GreyChroma = 8;

/** A colour in the CIE L*a*b* space. */
struct Lab
{
    double l;
    double a;
    double b;
};

double linear(int channel)
{
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double labCurve(double t)
{
    return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
}

Lab toLab(QRgb rgb)
{
    const double r = linear(qRed(rgb));
    const double g = linear(qGreen(rgb));
    const double b = linear(qBlue(rgb));
    const double x = labCurve((0.4124 * r + 0.3576 * g + 0.1805 * b) / 0.9505);
    const double y = labCurve(0.2126 * r + 0.7152 * g + 0.0722 * b);
    const double z = labCurve((0.0193 * r + 0.1192 * g + 0.9505 * b) / 1.089);
    return Lab{116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/** A squared distance from a thread to a chart's colour. Lightness counts less than hue: a leaf
   that turns grey is worse than one that turns pale. */
double distance(QRgb thread, QRgb chart)
{
    const Lab p = toLab(thread);
    const Lab q = toLab(chart);
    const double l = LightnessWeight * (p.l - q.l);
    const double threadChroma = std::hypot(p.a, p.b);
    const double chartChroma = std::hypot(q.a, q.b);
    const double chroma = threadChroma - chartChroma;
    const double hueSquared =
        (p.a - q.a) * (p.a - q.a) + (p.b - q.b) * (p.b - q.b) - chroma * chroma;
    const bool losesHue = threadChroma > ColorChroma && chartChroma < GreyChroma;
    return l * l + ChromaWeight * chroma * chroma + HueWeight * hueSquared +
           (losesHue ? GreyPenalty : 0);
}

} // namespace

QVector<int> nearestIndices(const QList<QSharedPointer<EmbThread>> &threads,
                            const QList<QSharedPointer<EmbThread>> &chart, int first, int last)
{
    const int end = last < 0 ? chart.size() - 1 : last;
    QVector<int> indices;
    for (const QSharedPointer<EmbThread> &thread : threads) {
        int best = first;
        double bestDistance = std::numeric_limits<double>::max();
        for (int i = first; i <= end; ++i) {
            const double d = distance(thread->getRGB(), chart[i]->getRGB());
            if (d < bestDistance) {
                best = i;
                bestDistance = d;
            }
        }
        indices << best;
    }
    return indices;
}

} // namespace DesignWriters
