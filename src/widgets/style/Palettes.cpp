#include "widgets/style/Palettes.h"

#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"

namespace {

constexpr qreal LeastContrast = 4.5;
constexpr qreal SoftShare = 0.62;

struct Shade
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr Shade Shades[] = {
    {QPalette::Window, 0xf4f5f5, 0x262b2e},      {QPalette::WindowText, 0x21292e, 0xe3e8e9},
    {QPalette::Base, 0xffffff, 0x1d2124},        {QPalette::AlternateBase, 0xf7f9f9, 0x22272a},
    {QPalette::Text, 0x21292e, 0xe3e8e9},        {QPalette::Button, 0xfcfcfc, 0x343b3f},
    {QPalette::ButtonText, 0x21292e, 0xe3e8e9},  {QPalette::BrightText, 0xffffff, 0xffffff},
    {QPalette::Light, 0xffffff, 0x4b5459},       {QPalette::Midlight, 0xe4e9e9, 0x3b4348},
    {QPalette::Mid, 0xcdd4d5, 0x495358},         {QPalette::Dark, 0xb0b9bb, 0x5b666b},
    {QPalette::Shadow, 0x000000, 0x000000},      {QPalette::HighlightedText, 0xffffff, 0xffffff},
    {QPalette::ToolTipBase, 0x2b353a, 0x3d464b}, {QPalette::ToolTipText, 0xf1f4f4, 0xf1f4f4},
};

constexpr Shade DisabledButton{QPalette::Button, 0xe4eded, 0x2e3c40};

/** Moves \a text towards black or white until it can be read on \a background. */
QColor readable(const QColor &text, const QColor &background)
{
    if (WidgetHelper::contrast(text, background) >= LeastContrast)
        return text;
    QColor goal = WidgetHelper::contrast(Qt::white, background) >
                          WidgetHelper::contrast(Qt::black, background)
                      ? Qt::white
                      : Qt::black;
    for (int tenth = 1; tenth < 10; ++tenth) {
        QColor candidate = WidgetHelper::mixed(goal, text, tenth / 10.0);
        if (WidgetHelper::contrast(candidate, background) >= LeastContrast)
            return candidate;
    }
    return goal;
}

void makeRoleReadable(QPalette &palette, QPalette::ColorGroup group, QPalette::ColorRole text,
                      QPalette::ColorRole background)
{
    const QColor color = readable(palette.color(group, text), palette.color(group, background));
    if (color != palette.color(group, text))
        palette.setColor(group, text, color);
}

void setPlaceholderColor(QPalette &palette, QPalette::ColorGroup group)
{
    const QColor base = palette.color(group, QPalette::Base);
    const QColor soft = WidgetHelper::mixed(palette.color(group, QPalette::Text), base, SoftShare);
    palette.setColor(group, QPalette::PlaceholderText, readable(soft, base));
}

/** What cannot be used is paler, but can be read. */
void fadeDisabled(QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const QColor faded = readable(WidgetHelper::mixed(text, window, SoftShare), window);
    for (QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, faded);
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, palette.color(QPalette::Mid));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, text);
}

QPalette ownPalette(QRgb Shade::*shade, const QColor &highlight, const QColor &link)
{
    QPalette palette;
    for (const Shade &entry : Shades)
        palette.setColor(entry.role, QColor(entry.*shade));
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::Link, link);
    palette.setColor(QPalette::LinkVisited, link);
    palette.setColor(QPalette::Disabled, DisabledButton.role, QColor(DisabledButton.*shade));
    fadeDisabled(palette);
    Palettes::makeReadable(palette);
    return palette;
}

} // namespace

QPalette Palettes::light()
{
    return ownPalette(&Shade::light, WidgetStyles::Primary500, WidgetStyles::Primary600);
}

QPalette Palettes::dark()
{
    return ownPalette(&Shade::dark, WidgetStyles::Primary600, WidgetStyles::Primary200);
}

void Palettes::makeReadable(QPalette &palette)
{
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        makeRoleReadable(palette, group, QPalette::WindowText, QPalette::Window);
        makeRoleReadable(palette, group, QPalette::Text, QPalette::Base);
        makeRoleReadable(palette, group, QPalette::ButtonText, QPalette::Button);
        makeRoleReadable(palette, group, QPalette::HighlightedText, QPalette::Highlight);
        makeRoleReadable(palette, group, QPalette::ToolTipText, QPalette::ToolTipBase);
        for (QPalette::ColorRole link : {QPalette::Link, QPalette::LinkVisited}) {
            makeRoleReadable(palette, group, link, QPalette::Base);
            makeRoleReadable(palette, group, link, QPalette::Window);
        }
        if (group != QPalette::Disabled)
            setPlaceholderColor(palette, group);
    }
}

bool Palettes::haveSameColors(const QPalette &first, const QPalette &second)
{
    for (QPalette::ColorRole role : {QPalette::Window, QPalette::WindowText, QPalette::Base,
                                     QPalette::Button, QPalette::Highlight}) {
        if (first.color(QPalette::Active, role) != second.color(QPalette::Active, role))
            return false;
    }
    return true;
}
