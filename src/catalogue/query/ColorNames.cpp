#include "catalogue/query/ColorNames.h"

#include <algorithm>
#include <QRegularExpression>

namespace {

struct NamedColor
{
    /** Separated by blanks; the first is the one that is offered. */
    const char *names;
    /** Together with what lies near to them they cover what people call by the name. */
    QVector<QRgb> shades;
};

const QVector<NamedColor> &namedColors()
{
    static const QVector<NamedColor> colors = {
        {"red rot 红 红色 紅 紅色", {0xe00000, 0xc81428, 0x981020}},
        {"orange 橙 橙色 橘色", {0xff8000, 0xff9820, 0xf07828}},
        {"yellow gelb 黄 黄色 黃 黃色", {0xffe000, 0xffff40, 0xf8f090, 0xe8c830}},
        {"green grün gruen 绿 绿色 綠 綠色",
         {0x20a030, 0x60c040, 0x006838, 0x2e7a20, 0x507838, 0x40c890, 0xa0d878, 0x20f020, 0x8c9850,
          0x183c20}},
        {"turquoise türkis tuerkis teal 青 青色 青绿", {0x30b8b0, 0x008080, 0x80d8d0}},
        {"blue blau 蓝 蓝色 藍 藍色",
         {0x1038b0, 0x0000f0, 0x0000a0, 0x0a55a3, 0x00206b, 0x3888c8, 0x4b6baf, 0x90c8e8}},
        {"purple violet lila violett 紫 紫色",
         {0x802090, 0x4e2990, 0xa060b0, 0xb090c8, 0x5a2060, 0xf020f0}},
        {"pink rosa 粉 粉色 粉红 粉红色", {0xf8a0c0, 0xf04888, 0xffd0d0, 0xe060a0, 0xff6880}},
        {"brown braun 棕 棕色 褐 褐色",
         {0x804818, 0xa86828, 0x602808, 0x7b554a, 0xb06838, 0x2a1301}},
        {"beige 米 米色", {0xefe3b9, 0xd8b888}},
        {"gold golden 金 金色", {0xd8a820}},
        {"silver silber silbern 银 银色 銀 銀色", {0xb0b0b0}},
        {"gray grey grau 灰 灰色", {0x808080, 0x505050, 0xa8a8a8, 0xc8c8c8}},
        {"black schwarz 黑 黑色", {0x000000}},
        {"white weiß weiss 白 白色", {0xffffff}},
    };
    return colors;
}

QStringList namesOf(const NamedColor &color)
{
    return QString::fromUtf8(color.names).split(QLatin1Char(' '));
}

QVector<QColor> hexColor(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^#(?:[0-9a-f]{3}|[0-9a-f]{6})$"));
    return form.match(text).hasMatch() ? QVector<QColor>{QColor(text)} : QVector<QColor>();
}

} // namespace

QVector<QColor> ColorNames::shadesOf(const QString &text)
{
    const QString name = text.toLower().remove(QLatin1Char(' '));
    if (name.startsWith(QLatin1Char('#')))
        return hexColor(name);
    for (const NamedColor &color : namedColors()) {
        if (namesOf(color).contains(name))
            return {color.shades.begin(), color.shades.end()};
    }
    // The names of the web's colours, as SVG 1.0 lists them.
    if (QColor::colorNames().contains(name) && QColor(name).alpha() == 255)
        return {QColor(name)};
    return {};
}

QStringList ColorNames::common()
{
    QStringList names;
    for (const NamedColor &color : namedColors())
        names.append(namesOf(color).constFirst());
    return names;
}
