#include "widgets/style/TnwMacStyle.h"

#include "widgets/style/FlatControls.h"
#include "widgets/style/GIcon.h"
#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace {

constexpr qreal LeastContrast = 4.5;
constexpr qreal Radius = 4.0;
constexpr int RowPadding = 8;

/** The names of colours as a palette needs them, apart from those that it can derive. */
struct Shades
{
    QColor window, text, base, alternate, button, light, midlight, mid, dark, highlight;
    QColor highlightedText, link, toolTip, toolTipText, disabledButton;
};

/** Moves \a text towards black or white until it can be read on \a background. */
QColor readable(const QColor &text, const QColor &background)
{
    if (WidgetHelper::contrast(text, background) >= LeastContrast)
        return text;
    const QColor goal = WidgetHelper::contrast(Qt::white, background) >
                                WidgetHelper::contrast(Qt::black, background)
                            ? Qt::white
                            : Qt::black;
    for (qreal share = 0.1; share < 1.0; share += 0.1) {
        const QColor candidate = WidgetHelper::mixed(goal, text, share);
        if (WidgetHelper::contrast(candidate, background) >= LeastContrast)
            return candidate;
    }
    return goal;
}

void makeReadable(QPalette &palette, QPalette::ColorGroup group, QPalette::ColorRole text,
                  QPalette::ColorRole background)
{
    const QColor color = readable(palette.color(group, text), palette.color(group, background));
    if (color != palette.color(group, text))
        palette.setColor(group, text, color);
}

void setPlaceholderColor(QPalette &palette, QPalette::ColorGroup group)
{
    const QColor base = palette.color(group, QPalette::Base);
    const QColor soft = WidgetHelper::mixed(palette.color(group, QPalette::Text), base, 0.62);
    palette.setColor(group, QPalette::PlaceholderText, readable(soft, base));
}

void makeReadable(QPalette &palette)
{
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        makeReadable(palette, group, QPalette::WindowText, QPalette::Window);
        makeReadable(palette, group, QPalette::Text, QPalette::Base);
        makeReadable(palette, group, QPalette::ButtonText, QPalette::Button);
        makeReadable(palette, group, QPalette::HighlightedText, QPalette::Highlight);
        makeReadable(palette, group, QPalette::ToolTipText, QPalette::ToolTipBase);
        for (QPalette::ColorRole link : {QPalette::Link, QPalette::LinkVisited}) {
            makeReadable(palette, group, link, QPalette::Base);
            makeReadable(palette, group, link, QPalette::Window);
        }
        setPlaceholderColor(palette, group);
    }
}

QPalette paletteOf(const Shades &shades)
{
    QPalette palette;
    palette.setColor(QPalette::Window, shades.window);
    palette.setColor(QPalette::WindowText, shades.text);
    palette.setColor(QPalette::Base, shades.base);
    palette.setColor(QPalette::AlternateBase, shades.alternate);
    palette.setColor(QPalette::Text, shades.text);
    palette.setColor(QPalette::Button, shades.button);
    palette.setColor(QPalette::ButtonText, shades.text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Light, shades.light);
    palette.setColor(QPalette::Midlight, shades.midlight);
    palette.setColor(QPalette::Mid, shades.mid);
    palette.setColor(QPalette::Dark, shades.dark);
    palette.setColor(QPalette::Shadow, Qt::black);
    palette.setColor(QPalette::Highlight, shades.highlight);
    palette.setColor(QPalette::HighlightedText, shades.highlightedText);
    palette.setColor(QPalette::Link, shades.link);
    palette.setColor(QPalette::LinkVisited, shades.link);
    palette.setColor(QPalette::ToolTipBase, shades.toolTip);
    palette.setColor(QPalette::ToolTipText, shades.toolTipText);

    palette.setColor(QPalette::Disabled, QPalette::Button, shades.disabledButton);
    const QColor faded =
        readable(WidgetHelper::mixed(shades.text, shades.window, 0.62), shades.window);
    for (QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, faded);
    palette.setColor(QPalette::Disabled, QPalette::Base, shades.window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, shades.mid);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, shades.text);
    makeReadable(palette);
    return palette;
}

/** Where the desktop has no palette, Qt hands out the one of the base style in its stead. */
bool haveSameColors(const QPalette &first, const QPalette &second)
{
    for (QPalette::ColorRole role : {QPalette::Window, QPalette::WindowText, QPalette::Base,
                                     QPalette::Button, QPalette::Highlight}) {
        if (first.color(QPalette::Active, role) != second.color(QPalette::Active, role))
            return false;
    }
    return true;
}

void drawRoundedBox(QPainter *painter, const QRect &rect, const QBrush &fill, const QPen &pen)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(fill);
    painter->setPen(pen);
    const qreal inset = pen.style() == Qt::NoPen ? 0.0 : pen.widthF() / 2;
    painter->drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), Radius, Radius);
    painter->restore();
}

QPen focusPen()
{
    return QPen(WidgetStyles::Accent(), 2.0);
}

void drawToolButtonPanel(const QStyleOption *option, QPainter *painter)
{
    const QPalette &palette = option->palette;
    const bool enabled = option->state & QStyle::State_Enabled;
    QBrush fill = Qt::NoBrush;
    if (option->state & (QStyle::State_Sunken | QStyle::State_On))
        fill = palette.color(QPalette::Mid);
    else if (enabled && (option->state & QStyle::State_MouseOver))
        fill = palette.color(QPalette::Midlight);
    const bool focused = enabled && (option->state & QStyle::State_HasFocus);
    drawRoundedBox(painter, option->rect.adjusted(1, 1, -1, -1), fill,
                   focused ? focusPen() : QPen(Qt::NoPen));
}

void drawPushButtonPanel(const QStyleOptionButton *option, QPainter *painter)
{
    const QPalette &palette = option->palette;
    const bool enabled = option->state & QStyle::State_Enabled;
    QColor fill = palette.color(enabled ? QPalette::Button : QPalette::Window);
    if (option->state & (QStyle::State_Sunken | QStyle::State_On))
        fill = palette.color(QPalette::Mid);
    else if (enabled && (option->state & QStyle::State_MouseOver))
        fill = palette.color(QPalette::Midlight);

    QPen pen(palette.color(QPalette::Dark), 1.0);
    if (enabled && (option->state & QStyle::State_HasFocus))
        pen = focusPen();
    else if (enabled && (option->features & QStyleOptionButton::DefaultButton))
        pen = QPen(WidgetStyles::Accent(), 1.0);
    else if (!enabled)
        pen.setColor(palette.color(QPalette::Mid));
    drawRoundedBox(painter, option->rect, fill, pen);
}

/** The outline of a field that is written or chosen in. */
void drawFieldFrame(const QStyleOption *option, QPainter *painter)
{
    const bool enabled = option->state & QStyle::State_Enabled;
    QPen pen(option->palette.color(enabled ? QPalette::Dark : QPalette::Mid), 1.0);
    if (enabled && (option->state & QStyle::State_HasFocus))
        pen = focusPen();
    drawRoundedBox(painter, option->rect, Qt::NoBrush, pen);
}

void drawToolBar(const QStyleOption *option, QPainter *painter)
{
    const QRect &rect = option->rect;
    painter->fillRect(rect, option->palette.window());
    painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), option->palette.mid());
}

void drawFocusFrame(const QStyleOption *option, QPainter *painter)
{
    const QRect rect = option->rect.adjusted(1, 1, -1, -1);
    const bool onSelection = option->state & QStyle::State_Selected;
    const QColor color =
        onSelection ? option->palette.color(QPalette::HighlightedText) : WidgetStyles::Accent();
    drawRoundedBox(painter, rect, Qt::NoBrush, QPen(color, onSelection ? 1.0 : 1.5));
}

} // namespace

TnwMacStyle::TnwMacStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

QPalette TnwMacStyle::lightPalette()
{
    Shades shades;
    shades.window = QColor(0xf4, 0xf5, 0xf5);
    shades.text = QColor(0x21, 0x29, 0x2e);
    shades.base = QColor(0xff, 0xff, 0xff);
    shades.alternate = QColor(0xf7, 0xf9, 0xf9);
    shades.button = QColor(0xfc, 0xfc, 0xfc);
    shades.light = QColor(0xff, 0xff, 0xff);
    shades.midlight = QColor(0xe4, 0xe9, 0xe9);
    shades.mid = QColor(0xcd, 0xd4, 0xd5);
    shades.dark = QColor(0xb0, 0xb9, 0xbb);
    shades.highlight = WidgetStyles::Primary500;
    shades.highlightedText = QColor(0xff, 0xff, 0xff);
    shades.link = WidgetStyles::Primary600;
    shades.disabledButton = QColor(0xe4, 0xed, 0xed);
    shades.toolTip = QColor(0x2b, 0x35, 0x3a);
    shades.toolTipText = QColor(0xf1, 0xf4, 0xf4);
    return paletteOf(shades);
}

QPalette TnwMacStyle::darkPalette()
{
    Shades shades;
    shades.window = QColor(0x26, 0x2b, 0x2e);
    shades.text = QColor(0xe3, 0xe8, 0xe9);
    shades.base = QColor(0x1d, 0x21, 0x24);
    shades.alternate = QColor(0x22, 0x27, 0x2a);
    shades.button = QColor(0x34, 0x3b, 0x3f);
    shades.light = QColor(0x4b, 0x54, 0x59);
    shades.midlight = QColor(0x3b, 0x43, 0x48);
    shades.mid = QColor(0x49, 0x53, 0x58);
    shades.dark = QColor(0x5b, 0x66, 0x6b);
    shades.highlight = WidgetStyles::Primary600;
    shades.highlightedText = QColor(0xff, 0xff, 0xff);
    shades.link = WidgetStyles::Primary200;
    shades.disabledButton = QColor(0x2e, 0x3c, 0x40);
    shades.toolTip = QColor(0x3d, 0x46, 0x4b);
    shades.toolTipText = QColor(0xf1, 0xf4, 0xf4);
    return paletteOf(shades);
}

QPalette TnwMacStyle::standardPalette() const
{
    return lightPalette();
}

void TnwMacStyle::polish(QPalette &palette)
{
    if (haveSameColors(palette, baseStyle()->standardPalette()))
        palette = lightPalette();
    makeReadable(palette);
}

void TnwMacStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                QPainter *painter, const QWidget *widget) const
{
    switch (element) {
    case PE_FrameFocusRect:
        drawFocusFrame(option, painter);
        return;
    case PE_PanelButtonTool:
        drawToolButtonPanel(option, painter);
        return;
    case PE_PanelButtonCommand:
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option))
            drawPushButtonPanel(button, painter);
        // The end of a field with a list: the field has a frame already and the arrow is enough.
        return;
    case PE_FrameDefaultButton:
        return;
    case PE_IndicatorCheckBox:
        FlatControls::drawCheckBox(option, painter);
        return;
    case PE_FrameTabWidget:
        FlatControls::drawTabPane(option, painter);
        return;
    case PE_FrameTabBarBase:
        return;
    case PE_Frame:
    case PE_FrameLineEdit:
        drawFieldFrame(option, painter);
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void TnwMacStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    switch (element) {
    case CE_ToolBar:
        drawToolBar(option, painter);
        return;
    case CE_ProgressBarGroove:
        FlatControls::drawProgressGroove(option, painter);
        return;
    case CE_ProgressBarContents: {
        const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option);
        if (bar && bar->maximum > bar->minimum && (bar->state & State_Horizontal)) {
            FlatControls::drawProgressContents(bar, painter);
            return;
        }
        // A bar without a range shows a movement that the base style knows.
        painter->save();
        FlatControls::clipToProgressGroove(option, painter);
        QProxyStyle::drawControl(element, option, painter, widget);
        painter->restore();
        return;
    }
    case CE_HeaderSection:
        if (const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option)) {
            FlatControls::drawHeaderSection(header, painter);
            return;
        }
        break;
    case CE_HeaderEmptyArea:
        FlatControls::drawHeaderRest(option, painter);
        return;
    case CE_TabBarTabShape:
        if (const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option)) {
            FlatControls::drawTab(tab, painter, WidgetStyles::Accent());
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void TnwMacStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                     QPainter *painter, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider)
        FlatControls::drawScrollBar(slider, painter);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect TnwMacStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                  SubControl part, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider)
        return FlatControls::scrollBarPart(slider, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize TnwMacStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                    const QSize &size, const QWidget *widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_ItemViewItem)
        result.setHeight(qMax(result.height(), option->fontMetrics.height() + RowPadding));
    return result;
}

int TnwMacStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                             const QWidget *widget) const
{
    switch (metric) {
    case PM_ToolBarItemSpacing:
        return 2;
    case PM_ToolBarFrameWidth:
        return 0;
    case PM_ToolBarItemMargin:
        return 4;
    case PM_ToolBarIconSize:
        return 24;
    case PM_ScrollBarExtent:
        return 14;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int TnwMacStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                           QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    // The wheel scrolls the panel; it must not choose a tag or a filter on its way.
    case SH_ComboBox_AllowWheelScrolling:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QIcon TnwMacStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption *option,
                                const QWidget *widget) const
{
    switch (standardIcon) {
    case SP_MessageBoxInformation:
        return GIcon(QStringLiteral(":/tnw_tools/icons/Box_Information.svg"));
    case SP_MessageBoxQuestion:
        return GIcon(QStringLiteral(":/tnw_tools/icons/Box_Question.svg"));
    case SP_MessageBoxWarning:
        return GIcon(QStringLiteral(":/tnw_tools/icons/Box_Warning.svg"));
    case SP_MessageBoxCritical:
        return GIcon(QStringLiteral(":/tnw_tools/icons/Box_Critical.svg"));
    default:
        return QProxyStyle::standardIcon(standardIcon, option, widget);
    }
}
