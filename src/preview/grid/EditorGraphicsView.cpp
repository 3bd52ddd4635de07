#include "preview/grid/EditorGraphicsView.h"

#include "preview/grid/EditorScene.h"
#include <algorithm>
#include <QGestureEvent>
#include <QMouseEvent>
#include <QPinchGesture>

namespace {

constexpr double SmallestPinchZoom = 0.1;
constexpr double LargestPinchZoom = 10.0;

// The growth since the fingers went down. Touch screens tell it as the total
// factor, while the trackpad of macOS adds it up in the plain factor.
double factorOf(const QPinchGesture *gesture)
{
    const double total = gesture->totalScaleFactor();
    return qFuzzyCompare(total, 1.0) ? gesture->scaleFactor() : total;
}

// `event` as if it came from the left button.
QMouseEvent asLeftButton(const QMouseEvent *event)
{
    const bool pressed = event->type() == QEvent::MouseButtonPress;
    return QMouseEvent(event->type(), event->localPos(), event->windowPos(), event->screenPos(),
                       Qt::LeftButton, pressed ? Qt::LeftButton : Qt::NoButton, event->modifiers());
}

} // namespace

EditorGraphicsView::EditorGraphicsView(QWidget *parent) : QGraphicsView(parent)
{
    viewport()->setAttribute(Qt::WA_AcceptTouchEvents);
    grabGesture(Qt::PinchGesture);
    setResizeAnchor(QGraphicsView::AnchorViewCenter);
    applyInteractionMode(m_mode);
}

void EditorGraphicsView::setScene(EditorScene *scene)
{
    m_scene = scene;
    QGraphicsView::setScene(scene);
}

void EditorGraphicsView::applyZoom(double z)
{
    m_zoom = z;
    setTransform(QTransform::fromScale(z, m_flipped ? -z : z));
    if (m_scene != nullptr) {
        m_scene->scaleFactorChanged(z);
    }
}

void EditorGraphicsView::zoomTo(double z)
{
    const QPointF center = mapToScene(viewport()->rect().center());
    applyZoom(z);
    centerOn(center);
    emit zoomChanged(z);
}

void EditorGraphicsView::setInteractionMode(InteractionMode mode)
{
    m_mode = mode;
    applyInteractionMode(mode);
}

void EditorGraphicsView::applyInteractionMode(InteractionMode mode)
{
    switch (mode) {
    case Pan:
        setDragMode(QGraphicsView::ScrollHandDrag);
        break;
    case RubberBand:
        setDragMode(QGraphicsView::RubberBandDrag);
        break;
    case NoDragging:
        setDragMode(QGraphicsView::NoDrag);
        break;
    }
}

bool EditorGraphicsView::event(QEvent *event)
{
    if (event->type() == QEvent::Gesture) {
        auto *gestures = static_cast<QGestureEvent *>(event);
        if (QGesture *gesture = gestures->gesture(Qt::PinchGesture)) {
            pinch(static_cast<QPinchGesture *>(gesture));
            gestures->accept(gesture);
            return true;
        }
    }
    return QGraphicsView::event(event);
}

void EditorGraphicsView::pinch(const QPinchGesture *gesture)
{
    const double factor = factorOf(gesture);
    if (factor <= 0.0) {
        return;
    }
    const double zoom = factor * (m_zoom / m_lastPinchFactor);
    const bool ended =
        gesture->state() == Qt::GestureFinished || gesture->state() == Qt::GestureCanceled;
    m_lastPinchFactor = ended ? 1.0 : factor;
    applyZoom(std::clamp(zoom, SmallestPinchZoom, LargestPinchZoom));
    emit zoomChanged(m_zoom);
}

void EditorGraphicsView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::MiddleButton) {
        QGraphicsView::mousePressEvent(event);
        return;
    }
    applyInteractionMode(Pan);
    setInteractive(false);
    QMouseEvent press = asLeftButton(event);
    QGraphicsView::mousePressEvent(&press);
}

void EditorGraphicsView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::MiddleButton) {
        QGraphicsView::mouseReleaseEvent(event);
        return;
    }
    QMouseEvent release = asLeftButton(event);
    QGraphicsView::mouseReleaseEvent(&release);
    setInteractive(true);
    applyInteractionMode(m_mode);
}

void EditorGraphicsView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space) {
        applyInteractionMode(Pan);
        return;
    }
    QGraphicsView::keyPressEvent(event);
}

void EditorGraphicsView::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        applyInteractionMode(m_mode);
        return;
    }
    QGraphicsView::keyReleaseEvent(event);
}

void EditorGraphicsView::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::AltModifier) {
        // Some platforms turn the wheel with Alt into a horizontal one.
        const QPoint delta = event->angleDelta();
        emit mouseZoom(delta.y() != 0 ? delta.y() : delta.x());
        event->accept();
        return;
    }
    QGraphicsView::wheelEvent(event);
}

void EditorGraphicsView::enterEvent(QtEvents::Enter *event)
{
    QGraphicsView::enterEvent(event);
    if (m_scene != nullptr) {
        m_scene->enter();
    }
}

void EditorGraphicsView::leaveEvent(QEvent *event)
{
    QGraphicsView::leaveEvent(event);
    if (m_scene != nullptr) {
        m_scene->leave();
    }
}

void EditorGraphicsView::paintEvent(QPaintEvent *event)
{
    if (m_scene != nullptr) {
        m_scene->areaExposed(mapToScene(viewport()->rect()).boundingRect());
    }
    QGraphicsView::paintEvent(event);
}

void EditorGraphicsView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    if (m_scene != nullptr) {
        m_scene->setEditorSize(event->size());
    }
}
