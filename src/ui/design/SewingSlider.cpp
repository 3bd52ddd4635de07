#include "ui/design/SewingSlider.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>
#include <utility>

namespace {

constexpr int BandHeight = 6;
constexpr int BandGap = 3;
constexpr int MarkHeight = 2;

} // namespace

SewingSlider::SewingSlider(QWidget *parent) : QSlider(Qt::Horizontal, parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Sewing progress"));
}

void SewingSlider::setDesign(const QSharedPointer<const SewingOrder> &order)
{
    m_order = order;
    m_marked = -1;
    const int count = order ? order->pointCount() : 0;
    setRange(0, count);
    setPageStep(qMax(count / 20, 1));
    update();
}

void SewingSlider::setMarkedUse(int use)
{
    m_marked = use;
    update();
}

QSize SewingSlider::sizeHint() const
{
    return QSlider::sizeHint() + QSize(0, 2 * (BandHeight + BandGap + MarkHeight));
}

QSize SewingSlider::minimumSizeHint() const
{
    return QSlider::minimumSizeHint() + QSize(0, 2 * (BandHeight + BandGap + MarkHeight));
}

QStyleOptionSlider SewingSlider::option() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return option;
}

QRect SewingSlider::way() const
{
    const QStyleOptionSlider slider = option();
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &slider, QStyle::SC_SliderGroove, this);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &slider, QStyle::SC_SliderHandle, this);
    const int inset = handle.width() / 2;
    return QRect(groove.left() + inset, handle.bottom() + BandGap,
                 groove.width() - handle.width() + 1, BandHeight);
}

int SewingSlider::pointAt(int x) const
{
    const QRect band = way();
    return QStyle::sliderValueFromPosition(minimum(), maximum(), x - band.left(), band.width() - 1);
}

void SewingSlider::mousePressEvent(QMouseEvent *event)
{
    // The handle comes to the pointer and is dragged from there.
    if (event->button() == Qt::LeftButton)
        setValue(pointAt(qRound(event->localPos().x())));
    QSlider::mousePressEvent(event);
}

void SewingSlider::paintEvent(QPaintEvent *event)
{
    QSlider::paintEvent(event);
    if (!m_order || m_order->threadUses().isEmpty())
        return;
    QPainter painter(this);
    const QRect band = way();
    int last = 0;
    // By pixels, of which there are few, rather than by threads.
    for (int x = band.left(); x <= band.right(); ++x) {
        const int use = m_order->useAt(pointAt(x));
        const QColor color(m_order->threadUses().at(use).thread->getRGB());
        // A gap tells two threads of the same colour apart.
        if (std::exchange(last, use) == use)
            painter.fillRect(x, band.top(), 1, band.height(), color);
        if (use == m_marked)
            painter.fillRect(x, band.bottom() + 2, 1, MarkHeight, palette().highlight());
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(band.adjusted(-1, -1, 0, 0));
}
