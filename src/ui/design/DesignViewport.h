#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

/**
 * Which part of a design a view shows, and how large. Positions in the view are in its
 * pixels, those in the design in tenths of a millimetre. A zoom of 1 is the true size.
 * The design fits the view until it is zoomed or moved; something of it always stays
 * in sight.
 */
class DesignViewport
{
public:
    /** Of the view, in its pixels. */
    void setSize(const QSizeF &size);
    /** Pixels of the view in a tenth of a millimetre of the screen. */
    void setTrueScale(double scale);
    /** What there is to see. */
    void setContents(const QRectF &contents);

    double zoom() const { return m_zoom; }
    /** Pixels of the view in a tenth of a millimetre of the design. */
    double scale() const { return m_zoom * m_trueScale; }
    bool isFitting() const { return m_fitting; }

    /** Shows all that there is, and goes on to do so. */
    void fit();
    /** Zooms so that what is at @p position in the view stays there. */
    void zoomAround(const QPointF &position, double zoom);
    /** Moves what is seen by so many pixels. */
    void pan(const QPointF &pixels);
    void centerOn(const QPointF &point);

    QRectF visibleArea() const;
    QPointF toView(const QPointF &point) const;
    QRectF toView(const QRectF &area) const;
    QPointF middle() const { return QPointF(m_size.width(), m_size.height()) / 2.0; }

    static constexpr double LeastZoom = 0.05;
    static constexpr double GreatestZoom = 32.0;

private:
    void refit();
    void keepInSight();

    QSizeF m_size;
    QRectF m_contents;
    double m_trueScale = 1.0;
    QPointF m_center;
    double m_zoom = 1.0;
    bool m_fitting = true;
};
