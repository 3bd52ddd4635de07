#pragma once

#include <QImage>
#include <QPointF>
#include <QSize>

/**
 * Paints stitches into a picture: lines of one width with round ends, their colour
 * running evenly from one end to the other, without antialiasing. The picture is what
 * QPainter makes of such a pen, at a tenth of the cost. Any thread.
 */
class StitchPainter
{
public:
    /**
     * @param size of the picture, which begins transparent
     * @param scale pixels per design unit
     * @param offset added to the scaled coordinates, in pixels
     * @param threadWidth in design units
     */
    StitchPainter(const QSize &size, double scale, const QPointF &offset, double threadWidth);

    /** Whether there is no memory for the picture; nothing may be painted then. */
    bool isNull() const { return m_image.isNull(); }

    /** Opaque colours at the two ends of a stitch. */
    struct Colors
    {
        QRgb from;
        QRgb to;
    };

    /**
     * Paints a stitch over all that is there.
     * @param from, to finite, in design units; the two may be equal, which leaves a dot
     */
    void paint(const QPointF &from, const QPointF &to, const Colors &colors);

    /**
     * Paints a stitch below all that is there: only what is still open to it shows. The
     * stitches of a design give the same picture last to first this way as first to last
     * the other way.
     */
    void paintBelow(const QPointF &from, const QPointF &to, const Colors &colors);

    /** Whether paintBelow() can still show anything. */
    bool isOpen() const { return m_openPixels > 0; }

    /**
     * About what a stitch costs, in units of a pixel that is painted. A measure that is
     * the same on every machine.
     */
    int work(const QPointF &from, const QPointF &to) const;

    /** What was painted, as Format_ARGB32. The painter must not be used afterwards. */
    QImage take();

private:
    struct Line;

    bool isBand() const { return m_radius > 0.5; }
    template <class Put>
    void trace(const Line &line, Put put);
    template <class Put>
    void traceBand(Line line, Put put) const;
    template <class Put>
    void traceHairline(const Line &line, Put put) const;

    QImage m_image;
    int m_width;
    int m_height;
    int m_stride; ///< pixels from one row to the next
    QRgb *m_pixels;
    double m_scale;
    QPointF m_offset;
    double m_radius;       ///< half the thread's width, in pixels
    uint m_coverage = 255; ///< how much a thread thinner than a pixel covers of one, of 255
    qint64 m_openPixels;
};
