#include "ui/design/ScreenScale.h"

#include <cmath>
#include <QScreen>

namespace {

constexpr double MillimetresPerInch = 25.4;
// A projector tells its native size or none, a telephone has no more than this.
constexpr double LeastResolution = 40.0;
constexpr double GreatestResolution = 800.0;
// Pixels are square, and sizes are told in whole millimetres.
constexpr double GreatestSkew = 1.1;
constexpr double Exactness = 0.01;
constexpr double UsualResolution = 96.0;
constexpr double Rounding = 0.51; // millimetres

bool isCredible(double resolution)
{
    return resolution >= LeastResolution && resolution <= GreatestResolution;
}

// A screen without a size of its own is given one that makes a round resolution of it, mostly
// the usual one; a real one, told in whole millimetres, hardly ever is as exact along both sides.
bool isMadeUp(const QSizeF &millimetres, double horizontal, double vertical)
{
    if (std::abs(horizontal - vertical) < Exactness)
        return std::abs(horizontal - std::round(horizontal)) < Exactness;
    const auto isUsual = [](double length, double resolution) {
        return std::abs(length * resolution / UsualResolution - length) < Rounding;
    };
    return isUsual(millimetres.width(), horizontal) && isUsual(millimetres.height(), vertical);
}

} // namespace

ScreenScale ScreenScale::of(const QScreen *screen)
{
    return of(screen->physicalSize(), screen->size(), screen->devicePixelRatio(),
              screen->logicalDotsPerInch());
}

ScreenScale ScreenScale::of(const QSizeF &millimetres, const QSizeF &pixels, double ratio,
                            double assumed)
{
    const ScreenScale guess{assumed / MillimetresPerInch, false};
    if (millimetres.isEmpty() || pixels.isEmpty())
        return guess;
    const double horizontal = pixels.width() * ratio * MillimetresPerInch / millimetres.width();
    const double vertical = pixels.height() * ratio * MillimetresPerInch / millimetres.height();
    const bool skewed =
        horizontal > vertical * GreatestSkew || vertical > horizontal * GreatestSkew;
    if (!isCredible(horizontal) || !isCredible(vertical) || skewed ||
        isMadeUp(millimetres, horizontal, vertical))
        return guess;
    return {(horizontal + vertical) / 2.0 / ratio / MillimetresPerInch, true};
}
