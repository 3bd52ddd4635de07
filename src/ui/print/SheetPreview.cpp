#include "ui/print/SheetPreview.h"

#include "ui/print/SheetPages.h"
#include "widgets/controls/ScreenReader.h"

#include <cmath>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWheelEvent>

namespace {

constexpr QSize UsualSize(540, 680);
constexpr int Margin = 16; // pixels
constexpr int WheelStep = 120;

} // namespace

SheetPreview::SheetPreview(SheetPages *pages, QWidget *parent) : QWidget(parent), m_pages(pages)
{
    // By itself Qt tells of no picture where a widget paints one.
    ScreenReader::setRole(this, QAccessible::Graphic);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Preview"));
    setMinimumSize(UsualSize / 2);
    connect(pages, &SheetPages::changed, this, &SheetPreview::pageChanged);
}

QSize SheetPreview::sizeHint() const
{
    return UsualSize;
}

void SheetPreview::pageChanged()
{
    m_image = QImage();
    setAccessibleDescription(m_pages->place());
    update();
}

QRectF SheetPreview::paperRect() const
{
    const QSizeF room = QSizeF(size()) - QSizeF(2 * Margin, 2 * Margin);
    QRectF paper(QPointF(), m_pages->paperSize().scaled(room, Qt::KeepAspectRatio));
    paper.moveCenter(QRectF(rect()).center());
    return paper;
}

void SheetPreview::paintEvent(QPaintEvent *)
{
    const QRectF paper = paperRect();
    const int width = int(std::round(paper.width() * devicePixelRatioF()));
    if (width < 1)
        return;
    if (m_image.width() != width)
        m_image = m_pages->image(width);
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    painter.drawImage(paper, m_image);
    painter.setPen(palette().color(QPalette::Shadow));
    painter.drawRect(paper);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void SheetPreview::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
    case Qt::Key_Left:
    case Qt::Key_Up:
        m_pages->showPrevious();
        break;
    case Qt::Key_PageDown:
    case Qt::Key_Right:
    case Qt::Key_Down:
        m_pages->showNext();
        break;
    case Qt::Key_Home:
        m_pages->showFirst();
        break;
    case Qt::Key_End:
        m_pages->showLast();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void SheetPreview::wheelEvent(QWheelEvent *event)
{
    // A touch pad tells of many small steps.
    m_wheel += event->angleDelta().y();
    for (; m_wheel >= WheelStep; m_wheel -= WheelStep)
        m_pages->showPrevious();
    for (; m_wheel <= -WheelStep; m_wheel += WheelStep)
        m_pages->showNext();
    event->accept();
}
