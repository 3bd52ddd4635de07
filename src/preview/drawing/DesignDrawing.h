#pragma once

#include "preview/drawing/SewingOrder.h"
#include <atomic>
#include <QColor>
#include <QSharedPointer>

class QImage;
class QPainter;

/** How a design is shown. */
struct DrawingStyle
{
    /** What the design lies on, and what pale threads fade into; the drawing does not paint it. */
    QColor fabric = Qt::white;
    /** Whether the jumps between the stitches show. */
    bool jumps = false;
    /** The one thread use that is to stand out, all others being pale; -1 for none. */
    int highlightedUse = -1;
    /** Whether threads that would hardly show on the fabric are drawn darker. */
    bool darkensPale = false;

    bool operator==(const DrawingStyle &other) const
    {
        return fabric == other.fabric && jumps == other.jumps &&
               highlightedUse == other.highlightedUse && darkensPale == other.darkensPale;
    }
};

/**
 * Draws a design, or as much of it as is sewn up to some point, in the order of
 * sewing: as shaded thread into the pixels of an image, or as plain lines with a
 * painter, which keeps a page small. What is drawn in parts, one after the other,
 * is the same as what is drawn at once.
 *
 * Only reads, so that any thread may draw.
 */
class DesignDrawing
{
public:
    explicit DesignDrawing(const QSharedPointer<const SewingOrder> &order,
                           const DrawingStyle &style = DrawingStyle());

    /** The points from `first` to before `end`, which may lie outside of the design. */
    struct Range
    {
        int first;
        int end;
    };
    /** All that is sewn. */
    Range everything() const { return {0, m_order->pointCount()}; }

    /**
     * Draws lines of the threads' own colours. The painter's coordinates are those of
     * the design, in tenths of a millimetre.
     */
    void paint(QPainter &painter, const Range &range) const;

    /**
     * Draws shaded thread with soft edges into @p image, which must be RGB32 or
     * premultiplied ARGB32. Its upper left corner shows the point @p origin of the
     * design; a tenth of a millimetre is @p scale pixels long. False, with the image
     * half painted, once @p cancelled is set.
     */
    bool paint(QImage &image, const QPointF &origin, double scale, const Range &range,
               const std::atomic<bool> *cancelled = nullptr) const;

private:
    QRgb colorOf(int use) const;
    QRgb faded(QRgb color, int use) const;
    /** The runs of which something is to be drawn; @p visible is in tenths of a millimetre. */
    template <class Draw>
    bool forEachRun(const Range &range, const QRectF &visible, Draw draw) const;

    QSharedPointer<const SewingOrder> m_order;
    DrawingStyle m_style;
};
