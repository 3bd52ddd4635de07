#include "widgets/style/WidgetHelper.h"

#include <QGuiApplication>
#include <QPalette>
#include <QtMath>

namespace {

constexpr int LongestWord = 40;

qreal linear(qreal component)
{
    return component <= 0.03928 ? component / 12.92 : qPow((component + 0.055) / 1.055, 2.4);
}

qreal luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

bool WidgetHelper::isDarkMode()
{
    return QGuiApplication::palette().color(QPalette::Active, QPalette::Window).lightness() < 128;
}

QColor WidgetHelper::mixed(const QColor &color, const QColor &background, qreal share)
{
    const qreal rest = 1.0 - share;
    return QColor::fromRgbF(color.redF() * share + background.redF() * rest,
                            color.greenF() * share + background.greenF() * rest,
                            color.blueF() * share + background.blueF() * rest);
}

qreal WidgetHelper::contrast(const QColor &first, const QColor &second)
{
    const qreal a = luminance(first);
    const qreal b = luminance(second);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

QString WidgetHelper::breakable(const QString &text)
{
    QString result;
    int run = 0;
    for (const QChar c : text) {
        result += c;
        run = c.isSpace() ? 0 : run + 1;
        if (run >= LongestWord && !c.isHighSurrogate()) {
            result += QChar(0x200b);
            run = 0;
        }
    }
    return result;
}

QString WidgetHelper::toolTipText(const QString &text)
{
    return QStringLiteral("<p>%1</p>").arg(breakable(text).toHtmlEscaped());
}
