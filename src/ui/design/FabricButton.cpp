#include "ui/design/FabricButton.h"

#include <QColorDialog>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace {

constexpr int SwatchSize = 20;
constexpr int ArrowSize = 8;
constexpr int ArrowRoom = 14;

QIcon swatch(const QColor &color, qreal ratio)
{
    QPixmap pixmap(QSize(SwatchSize, SwatchSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.setPen(Qt::gray);
    painter.drawRoundedRect(QRectF(1.5, 1.5, SwatchSize - 3, SwatchSize - 3), 3, 3);
    return QIcon(pixmap);
}

} // namespace

FabricButton::FabricButton(QWidget *parent) : QToolButton(parent)
{
    setText(tr("Fabric"));
    setToolTip(tr("The color of the fabric"));
    setAccessibleName(tr("Fabric"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setPopupMode(QToolButton::InstantPopup);
    setFocusPolicy(Qt::TabFocus);
    setMenu(new QMenu(this));
    addColor(tr("Linen"), QColor(0xf7, 0xf5, 0xf0));
    addColor(tr("White"), Qt::white);
    addColor(tr("Sand"), QColor(0xd9, 0xc7, 0xa5));
    addColor(tr("Rose"), QColor(0xe9, 0xb8, 0xbd));
    addColor(tr("Sage"), QColor(0xa9, 0xb8, 0x9c));
    addColor(tr("Sky blue"), QColor(0xa8, 0xc4, 0xdc));
    addColor(tr("Gray"), QColor(0x8c, 0x92, 0x98));
    addColor(tr("Denim"), QColor(0x3c, 0x52, 0x78));
    addColor(tr("Burgundy"), QColor(0x66, 0x1f, 0x2e));
    addColor(tr("Black"), QColor(0x1c, 0x1c, 0x1e));
    menu()->addSeparator();
    connect(menu()->addAction(tr("Other color...")), &QAction::triggered, this,
            &FabricButton::chooseOther);
}

void FabricButton::setColor(const QColor &color)
{
    m_color = color;
    setIcon(swatch(color, devicePixelRatioF()));
}

QSize FabricButton::sizeHint() const
{
    return QToolButton::sizeHint() + QSize(ArrowRoom, 0);
}

void FabricButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    // Most styles squeeze the arrow into the lower corner.
    option.features &= ~QStyleOptionToolButton::HasMenu;
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    QStyleOption arrow(option);
    arrow.rect = QStyle::alignedRect(
        layoutDirection(), Qt::AlignRight | Qt::AlignVCenter, QSize(ArrowSize, ArrowSize),
        rect().adjusted(ArrowRoom - ArrowSize, 0, ArrowSize - ArrowRoom, 0));
    painter.drawPrimitive(QStyle::PE_IndicatorArrowDown, arrow);
}

void FabricButton::addColor(const QString &name, const QColor &color)
{
    QAction *action = menu()->addAction(swatch(color, devicePixelRatioF()), name);
    action->setData(color);
    connect(action, &QAction::triggered, this, [this, color] { choose(color); });
}

void FabricButton::chooseOther()
{
    const QColor color = QColorDialog::getColor(m_color, window(), tr("The color of the fabric"));
    if (color.isValid())
        choose(color);
}

void FabricButton::choose(const QColor &color)
{
    setColor(color);
    emit colorChosen(color);
}
