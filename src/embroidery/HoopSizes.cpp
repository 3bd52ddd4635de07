#include "embroidery/HoopSizes.h"

namespace Embroidery {

namespace {

constexpr double MillimetresPerInch = 25.4;

/** In millimetres; 0 if there is none. */
double shortestSide(double length, bool imperial)
{
    const QStringList sides = HoopSizes::sides(imperial);
    for (const QString &side : sides) {
        const double millimetres = side.toDouble() * (imperial ? MillimetresPerInch : 1.0);
        if (millimetres >= length)
            return millimetres;
    }
    return 0;
}

} // namespace

QStringList HoopSizes::sides(bool imperial)
{
    static const QStringList inches{
        QStringLiteral("3.9"), QStringLiteral("5.1"),  QStringLiteral("5.5"),
        QStringLiteral("5.7"), QStringLiteral("5.9"),  QStringLiteral("6.2"),
        QStringLiteral("7"),   QStringLiteral("7.9"),  QStringLiteral("9.4"),
        QStringLiteral("10"),  QStringLiteral("10.2"), QStringLiteral("11.8"),
        QStringLiteral("14")};
    static const QStringList millimetres{
        QStringLiteral("90"),  QStringLiteral("100"), QStringLiteral("130"), QStringLiteral("140"),
        QStringLiteral("145"), QStringLiteral("150"), QStringLiteral("160"), QStringLiteral("180"),
        QStringLiteral("200"), QStringLiteral("255"), QStringLiteral("300"), QStringLiteral("360")};
    return imperial ? inches : millimetres;
}

std::optional<QSizeF> HoopSizes::smallestAround(const QSizeF &design, bool imperial)
{
    const QSizeF hoop(shortestSide(design.width(), imperial),
                      shortestSide(design.height(), imperial));
    return hoop.isEmpty() ? std::nullopt : std::make_optional(hoop);
}

} // namespace Embroidery
