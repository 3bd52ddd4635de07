#include "ui/design/DesignView.h"

#include "preview/drawing/HoopOutline.h"
#include "ui/design/DesignRenderer.h"
#include "ui/design/ScreenScale.h"
#include "widgets/controls/ScreenReader.h"

#include <cmath>
#include <QGestureEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPinchGesture>
#include <QScreen>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>

namespace {

constexpr double UnitsPerMillimetre = 10.0;
constexpr double ZoomStep = 1.25;
constexpr double WheelNotch = 120.0;
// In pixels of the widget.
constexpr double HoopWidth = 1.5;
// Around the view, so that moving the design shows something.
constexpr int PictureMargin = 128;
constexpr double NeedleRadius = 5.0;
constexpr int MessageMargin = 40;

} // namespace

DesignView::DesignView(QWidget *parent)
    : QWidget(parent), m_renderer(new DesignRenderer(this)), m_message(new QLabel(this))
{
    // By itself Qt tells of no picture where a widget paints one.
    ScreenReader::setRole(this, QAccessible::Graphic);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(200, 150);
    setCursor(Qt::OpenHandCursor);
    setAccessibleName(tr("Design"));
    grabGesture(Qt::PinchGesture);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->hide();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(MessageMargin, MessageMargin, MessageMargin, MessageMargin);
    layout->addWidget(m_message);
    connect(m_renderer, &DesignRenderer::rendered, this, &DesignView::takePicture);
}

void DesignView::setDesign(const QSharedPointer<const SewingOrder> &order,
                           const std::optional<QSizeF> &hoop)
{
    m_order = order;
    m_endPoint = order ? order->pointCount() : 0;
    setHoop(hoop);
}

void DesignView::setHoop(const std::optional<QSizeF> &hoop)
{
    m_hoop.reset();
    if (hoop && m_order)
        m_hoop = HoopOutline::around(m_order->bounds(), *hoop);
    m_viewport.setContents(m_hoop.value_or(m_order ? m_order->bounds() : QRectF()));
    viewChanged();
}

void DesignView::setMessage(const QString &text)
{
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
    update();
}

void DesignView::setDrawingStyle(const DrawingStyle &style)
{
    m_style = style;
    updateView();
}

void DesignView::setEndPoint(int point)
{
    m_endPoint = point;
    updateView();
}

void DesignView::showNeedle()
{
    if (!m_order || m_endPoint == 0)
        return;
    const QPointF needle = m_order->pointAt(m_endPoint - 1);
    if (!m_viewport.visibleArea().contains(needle)) {
        m_viewport.centerOn(needle);
        updateView();
    }
}

bool DesignView::isTrueSizeKnown() const
{
    return ScreenScale::of(screen()).isMeasured;
}

void DesignView::fit()
{
    m_viewport.fit();
    viewChanged();
}

void DesignView::setZoom(double zoom)
{
    m_viewport.zoomAround(m_viewport.middle(), zoom);
    viewChanged();
}

void DesignView::zoomIn()
{
    setZoom(zoom() * ZoomStep);
}

void DesignView::zoomOut()
{
    setZoom(zoom() / ZoomStep);
}

void DesignView::pan(const QPointF &pixels)
{
    m_viewport.pan(pixels);
    updateView();
}

void DesignView::screenChanged()
{
    m_viewport.setTrueScale(ScreenScale::of(screen()).pixelsPerMillimetre / UnitsPerMillimetre);
    viewChanged();
}

void DesignView::viewChanged()
{
    updateView();
    emit zoomChanged(zoom());
}

void DesignView::updateView()
{
    update();
    if (!m_order || size().isEmpty() || shows(m_requested))
        return;
    m_requested = wantedScene();
    m_renderer->request(m_requested);
}

DesignScene DesignView::wantedScene() const
{
    DesignScene scene;
    scene.order = m_order;
    scene.style = m_style;
    scene.endPoint = m_endPoint;
    scene.ratio = devicePixelRatioF();
    scene.scale = m_viewport.scale() * scene.ratio;
    const QSize margins(2 * PictureMargin, 2 * PictureMargin);
    scene.size = (QSizeF(size() + margins) * scene.ratio).toSize();
    scene.origin = m_viewport.visibleArea().topLeft() -
                   QPointF(PictureMargin, PictureMargin) / m_viewport.scale();
    return scene;
}

bool DesignView::shows(const DesignScene &scene) const
{
    return scene.order == m_order && scene.style == m_style && scene.endPoint == m_endPoint &&
           scene.ratio == devicePixelRatioF() && scene.scale == m_viewport.scale() * scene.ratio &&
           scene.area().contains(m_viewport.visibleArea());
}

void DesignView::takePicture(const DesignPicture &picture)
{
    m_picture = picture;
    update();
}

void DesignView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // The window's own handle is there only now.
    connect(window()->windowHandle(), &QWindow::screenChanged, this, &DesignView::screenChanged,
            Qt::UniqueConnection);
    screenChanged();
}

void DesignView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_viewport.setSize(size());
    viewChanged();
}

bool DesignView::event(QEvent *event)
{
    if (event->type() == QEvent::Gesture) {
        auto *gestures = static_cast<QGestureEvent *>(event);
        if (QGesture *gesture = gestures->gesture(Qt::PinchGesture)) {
            pinch(static_cast<QPinchGesture *>(gesture));
            gestures->accept(gesture);
            return true;
        }
    }
    return QWidget::event(event);
}

void DesignView::pinch(const QPinchGesture *gesture)
{
    if (gesture->scaleFactor() <= 0.0)
        return;
    m_viewport.zoomAround(mapFromGlobal(gesture->centerPoint().toPoint()),
                          zoom() * gesture->scaleFactor());
    viewChanged();
}

void DesignView::wheelEvent(QWheelEvent *event)
{
    const double notches = event->angleDelta().y() / WheelNotch;
    m_viewport.zoomAround(event->position(), zoom() * std::pow(ZoomStep, notches));
    viewChanged();
    event->accept();
}

void DesignView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
        m_draggedFrom = event->localPos();
        setCursor(Qt::ClosedHandCursor);
    }
}

void DesignView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_draggedFrom) {
        pan(event->localPos() - *m_draggedFrom);
        m_draggedFrom = event->localPos();
    }
}

void DesignView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::NoButton) {
        m_draggedFrom.reset();
        setCursor(Qt::OpenHandCursor);
    }
}

void DesignView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!m_message->text().isEmpty()) {
        painter.fillRect(rect(), palette().window());
        return;
    }
    painter.fillRect(rect(), m_style.fabric);
    if (!m_order)
        return;
    paintPicture(painter);
    if (m_hoop)
        HoopOutline::paint(painter, m_viewport.toView(*m_hoop), ink(), HoopWidth);
    if (m_endPoint > 0 && m_endPoint < m_order->pointCount())
        paintNeedle(painter);
}

void DesignView::paintPicture(QPainter &painter) const
{
    const DesignScene &scene = m_picture.scene;
    if (scene.order != m_order || m_picture.image.isNull())
        return;
    const double ratio = scene.ratio;
    if (scene.scale == m_viewport.scale() * ratio) {
        // On whole pixels of the screen, so that it stays as sharp as it is.
        const QPointF corner = m_viewport.toView(scene.origin) * ratio;
        painter.drawImage(QPointF(std::round(corner.x()), std::round(corner.y())) / ratio,
                          m_picture.image);
        return;
    }
    const QRectF area = scene.area().intersected(m_viewport.visibleArea());
    const QRectF source((area.topLeft() - scene.origin) * scene.scale, area.size() * scene.scale);
    painter.drawImage(m_viewport.toView(area), m_picture.image, source);
}

void DesignView::paintNeedle(QPainter &painter) const
{
    const QPointF needle = m_viewport.toView(m_order->pointAt(m_endPoint - 1));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_style.fabric, 4.0));
    painter.drawEllipse(needle, NeedleRadius, NeedleRadius);
    painter.setPen(QPen(ink(), 2.0));
    painter.drawEllipse(needle, NeedleRadius, NeedleRadius);
}

QColor DesignView::ink() const
{
    return m_style.fabric.lightness() > 127 ? QColor(0x46, 0x50, 0x5a) : QColor(0xd8, 0xde, 0xe2);
}
