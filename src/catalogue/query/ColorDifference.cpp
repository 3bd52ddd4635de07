#include "catalogue/query/ColorDifference.h"

#include <cmath>
#include <QtMath>

namespace {

/** A component of sRGB, 0 to 1, as linear light; IEC 61966-2-1. */
double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

/** The response of the eye to a share of the white's light; CIE 15. */
double response(double share)
{
    constexpr double epsilon = 216.0 / 24389.0;
    constexpr double kappa = 24389.0 / 27.0;
    return share > epsilon ? std::cbrt(share) : (kappa * share + 16.0) / 116.0;
}

double cosDegrees(double degrees)
{
    return std::cos(qDegreesToRadians(degrees));
}

/** c^7 / (c^7 + 25^7), under a root: near 0 for greys, near 1 for vivid colours. */
double vividness(double chroma)
{
    const double power = std::pow(chroma, 7);
    return std::sqrt(power / (power + std::pow(25.0, 7)));
}

/** 0 to 360; 0 for greys, which have no hue. */
double hueOf(double a, double b)
{
    if (a == 0 && b == 0)
        return 0;
    const double degrees = qRadiansToDegrees(std::atan2(b, a));
    return degrees < 0 ? degrees + 360 : degrees;
}

double hueDifference(double first, double second)
{
    const double difference = second - first;
    if (difference > 180)
        return difference - 360;
    return difference < -180 ? difference + 360 : difference;
}

double meanHue(double first, double second)
{
    const double sum = first + second;
    if (std::abs(first - second) <= 180)
        return sum / 2;
    return sum < 360 ? (sum + 360) / 2 : (sum - 360) / 2;
}

} // namespace

LabColor LabColor::of(const QColor &color)
{
    const double red = linear(color.redF());
    const double green = linear(color.greenF());
    const double blue = linear(color.blueF());
    // Each row adds up to the white of D65, by which it is divided.
    const double x = response((0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / 0.95047);
    const double y = response(0.2126729 * red + 0.7151522 * green + 0.0721750 * blue);
    const double z = response((0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double ColorDifference::ciede2000(const LabColor &first, const LabColor &second)
{
    // The names are those of the paper, without the primes.
    const double meanC = (std::hypot(first.a, first.b) + std::hypot(second.a, second.b)) / 2;
    const double stretch = 1 + 0.5 * (1 - vividness(meanC));
    const double a1 = first.a * stretch;
    const double a2 = second.a * stretch;
    const double c1 = std::hypot(a1, first.b);
    const double c2 = std::hypot(a2, second.b);
    const double h1 = hueOf(a1, first.b);
    const double h2 = hueOf(a2, second.b);
    const bool grey = c1 * c2 == 0;

    const double deltaL = second.lightness - first.lightness;
    const double deltaC = c2 - c1;
    const double deltaHue = grey ? 0 : hueDifference(h1, h2);
    const double deltaH = 2 * std::sqrt(c1 * c2) * std::sin(qDegreesToRadians(deltaHue / 2));

    const double l = (first.lightness + second.lightness) / 2 - 50;
    const double c = (c1 + c2) / 2;
    const double h = grey ? h1 + h2 : meanHue(h1, h2);
    const double t = 1 - 0.17 * cosDegrees(h - 30) + 0.24 * cosDegrees(2 * h) +
                     0.32 * cosDegrees(3 * h + 6) - 0.20 * cosDegrees(4 * h - 63);
    const double theta = 30 * std::exp(-std::pow((h - 275) / 25, 2));
    const double rotation = -std::sin(qDegreesToRadians(2 * theta)) * 2 * vividness(c);

    const double lightness = deltaL / (1 + 0.015 * l * l / std::sqrt(20 + l * l));
    const double chroma = deltaC / (1 + 0.045 * c);
    const double hue = deltaH / (1 + 0.015 * c * t);
    return std::sqrt(lightness * lightness + chroma * chroma + hue * hue + rotation * chroma * hue);
}
