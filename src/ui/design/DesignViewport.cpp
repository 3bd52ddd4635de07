#include "ui/design/DesignViewport.h"

#include <QtGlobal>

namespace {

// In pixels of the view.
constexpr double FitMargin = 24.0;
// In tenths of a millimetre: half of it hangs over the edges of a design.
constexpr double ThreadWidth = 4.0;

} // namespace

void DesignViewport::setSize(const QSizeF &size)
{
    m_size = size;
    refit();
}

void DesignViewport::setTrueScale(double scale)
{
    m_trueScale = scale;
    refit();
}

void DesignViewport::setContents(const QRectF &contents)
{
    // Another design is looked at from its middle on; a hoop around the same one moves nothing.
    if (contents.center() != m_contents.center())
        m_center = contents.center();
    m_contents = contents;
    keepInSight();
    refit();
}

void DesignViewport::fit()
{
    m_fitting = true;
    refit();
}

void DesignViewport::refit()
{
    const double width = m_size.width() - 2 * FitMargin;
    const double height = m_size.height() - 2 * FitMargin;
    if (!m_fitting || m_contents.isNull() || width <= 0 || height <= 0)
        return;
    const double scale = qMin(width / (m_contents.width() + ThreadWidth),
                              height / (m_contents.height() + ThreadWidth));
    m_zoom = qMin(scale / m_trueScale, GreatestZoom);
    m_center = m_contents.center();
}

void DesignViewport::zoomAround(const QPointF &position, double zoom)
{
    const QPointF fromMiddle = position - middle();
    m_center += fromMiddle / scale();
    // A design may be so large that it takes less than the least zoom to show all of it.
    m_zoom = qBound(qMin(LeastZoom, m_zoom), zoom, GreatestZoom);
    m_center -= fromMiddle / scale();
    m_fitting = false;
    keepInSight();
}

void DesignViewport::pan(const QPointF &pixels)
{
    centerOn(m_center - pixels / scale());
}

void DesignViewport::centerOn(const QPointF &point)
{
    m_center = point;
    m_fitting = false;
    keepInSight();
}

void DesignViewport::keepInSight()
{
    m_center = QPointF(qBound(m_contents.left(), m_center.x(), m_contents.right()),
                       qBound(m_contents.top(), m_center.y(), m_contents.bottom()));
}

QRectF DesignViewport::visibleArea() const
{
    QRectF area(QPointF(), m_size / scale());
    area.moveCenter(m_center);
    return area;
}

QPointF DesignViewport::toView(const QPointF &point) const
{
    return (point - m_center) * scale() + middle();
}

QRectF DesignViewport::toView(const QRectF &area) const
{
    return QRectF(toView(area.topLeft()), area.size() * scale());
}
