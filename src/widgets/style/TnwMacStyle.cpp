#include "widgets/style/TnwMacStyle.h"

#include "widgets/style/FlatControls.h"
#include "widgets/style/GIcon.h"
#include "widgets/style/Palettes.h"
#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTreeView>

namespace {

constexpr qreal Radius = 4.0;
constexpr int RowPadding = 8;
constexpr int FieldPadding = 3;
constexpr int ButtonPadding = 12;
constexpr qreal DefaultTint = 0.22;

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

    // The default button is tinted; the one that has the keys has a ring.
    const bool isDefault = enabled && (option->features & QStyleOptionButton::DefaultButton);
    if (isDefault)
        fill = WidgetHelper::mixed(WidgetStyles::Accent(), fill, DefaultTint);
    QPen pen(isDefault ? WidgetStyles::Accent() : palette.color(QPalette::Dark), 1.0);
    if (enabled && (option->state & QStyle::State_HasFocus))
        pen = focusPen();
    else if (!enabled)
        pen.setColor(palette.color(QPalette::Mid));
    drawRoundedBox(painter, option->rect, fill, pen);
}

/** The outline of a field that is written or chosen in. */
void drawFieldFrame(const QStyleOption *option, QPainter *painter, const QBrush &fill)
{
    const bool enabled = option->state & QStyle::State_Enabled;
    QPen pen(option->palette.color(enabled ? QPalette::Dark : QPalette::Mid), 1.0);
    if (enabled && (option->state & QStyle::State_HasFocus))
        pen = focusPen();
    drawRoundedBox(painter, option->rect, fill, pen);
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

/** The option of a branch does not tell whether its row is selected. */
bool isInSelectedRow(const QStyleOption *option, const QWidget *widget)
{
    const auto *tree = qobject_cast<const QTreeView *>(widget);
    return tree && tree->selectionModel() &&
           tree->selectionModel()->isSelected(tree->indexAt(option->rect.center()));
}

bool isInPopup(const QWidget *widget)
{
    return widget && widget->window()->windowType() == Qt::Popup;
}

bool hasFrame(const QStyleOption *option)
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    return frame && frame->lineWidth > 0;
}

} // namespace

TnwMacStyle::TnwMacStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

QPalette TnwMacStyle::standardPalette() const
{
    return Palettes::light();
}

void TnwMacStyle::polish(QPalette &palette)
{
    // Where the desktop has no palette, Qt hands out the one of the base style in its stead.
    if (Palettes::haveSameColors(palette, baseStyle()->standardPalette()))
        palette = Palettes::light();
    Palettes::makeReadable(palette);
}

void TnwMacStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    // The delegate that a combo box brings along does not ask the style for the height of a row.
    auto *combo = qobject_cast<QComboBox *>(widget);
    if (combo && !qobject_cast<QStyledItemDelegate *>(combo->itemDelegate()))
        combo->setItemDelegate(new QStyledItemDelegate(combo));
}

void TnwMacStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                QPainter *painter, const QWidget *widget) const
{
    switch (element) {
    case PE_FrameFocusRect:
        // Whatever is chosen in a list that drops down has the focus.
        if (!isInPopup(widget))
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
    case PE_FrameMenu:
        return;
    case PE_PanelMenu:
        FlatControls::drawMenuPanel(option, painter);
        return;
    case PE_IndicatorBranch:
        if (isInSelectedRow(option, widget)) {
            QStyleOption onSelection(*option);
            const QColor ink = option->palette.color(QPalette::HighlightedText);
            for (QPalette::ColorRole role :
                 {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
                onSelection.palette.setColor(role, ink);
            QProxyStyle::drawPrimitive(element, &onSelection, painter, widget);
            return;
        }
        break;
    case PE_IndicatorCheckBox:
        FlatControls::drawCheckBox(option, painter);
        return;
    case PE_FrameTabWidget:
        FlatControls::drawTabPane(option, painter);
        return;
    case PE_FrameTabBarBase:
        return;
    case PE_Frame:
        // What scrolls leaves the round corners to the frame.
        drawFieldFrame(option, painter,
                       qobject_cast<const QAbstractScrollArea *>(widget) ? option->palette.base()
                                                                         : QBrush(Qt::NoBrush));
        return;
    case PE_FrameLineEdit:
        drawFieldFrame(option, painter, Qt::NoBrush);
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
    case CE_MenuItem: {
        const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        if (item && item->menuItemType == QStyleOptionMenuItem::Separator && item->text.isEmpty()) {
            FlatControls::drawMenuSeparator(item, painter);
            return;
        }
        break;
    }
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
    if (control == CC_ScrollBar && slider) {
        FlatControls::drawScrollBar(slider, painter);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (combo && combo->editable && combo->frame)
        FlatControls::drawComboDivider(
            combo, subControlRect(control, option, SC_ComboBoxArrow, widget), painter);
}

QRect TnwMacStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                  SubControl part, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider)
        return FlatControls::scrollBarPart(slider, part);
    QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    const auto *group = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
    if (group && part == SC_GroupBoxLabel) {
        // The base style leaves room for the ink, but writes from where the letters begin.
        const int width = group->fontMetrics.size(Qt::TextShowMnemonic, group->text).width();
        const int missing = qMax(width - rect.width(), 0);
        const bool fromRight = group->direction == Qt::RightToLeft;
        rect.adjust(fromRight ? -missing : 0, 0, fromRight ? 0 : missing, 0);
    }
    return rect;
}

QRect TnwMacStyle::subElementRect(SubElement element, const QStyleOption *option,
                                  const QWidget *widget) const
{
    // A frame around the text alone would look like a field to write in.
    if (element == SE_ItemViewItemFocusRect)
        return option->rect;
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    if (element == SE_LineEditContents && hasFrame(option))
        return rect.adjusted(FieldPadding, 0, -FieldPadding, 0);
    return rect;
}

QSize TnwMacStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                    const QSize &size, const QWidget *widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_LineEdit && hasFrame(option))
        result.rwidth() += 2 * FieldPadding;
    if (type == CT_PushButton)
        result.setWidth(qMax(result.width(), size.width() + 2 * ButtonPadding));
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
    case PM_DefaultFrameWidth:
        // Room for the focus ring around what scrolls.
        return qobject_cast<const QAbstractScrollArea *>(widget)
                   ? 2
                   : QProxyStyle::pixelMetric(metric, option, widget);
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
    // Every list opens below its field.
    case SH_ComboBox_Popup:
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
