#include "widgets/controls/DropFrame.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int FrameWidth = 2;

} // namespace

DropFrame::DropFrame(QWidget *target) : QWidget(target)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    target->installEventFilter(this);
    hide();
}

bool DropFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void DropFrame::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    setGeometry(parentWidget()->rect());
    raise();
}

void DropFrame::paintEvent(QPaintEvent *)
{
    constexpr qreal Inset = FrameWidth / 2.0;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), FrameWidth));
    painter.drawRect(QRectF(rect()).adjusted(Inset, Inset, -Inset, -Inset));
}
