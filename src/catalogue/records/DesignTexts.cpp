#include "catalogue/records/DesignTexts.h"

#include "base/GTranslationLoader.h"

#include <QLocale>

namespace {

constexpr double UnitsPerMetre = 10000.0;
constexpr double UnitsPerYard = 9144.0;
constexpr double FewMetres = 10.0;

QLocale locale()
{
    return GTranslationLoader::instance()->locale();
}

} // namespace

QString DesignTexts::number(int value)
{
    return locale().toString(value);
}

QString DesignTexts::threadLength(double units, bool imperial)
{
    const double length = units / (imperial ? UnitsPerYard : UnitsPerMetre);
    // A few stitches are a few centimetres.
    const QString text = locale().toString(length, 'f', length < FewMetres ? 2 : 1);
    return imperial ? tr("%1 yd").arg(text) : tr("%1 m").arg(text);
}
