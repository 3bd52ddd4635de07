#pragma once

#include "base/DummyAbortCheck.h"
#include "embroidery/EmbPattern.h"
#include <QColor>
#include <QImage>
#include <QLinearGradient>
#include <QPixmap>
#include <QPointF>
#include <QSharedPointer>
#include <QVector3D>
#include <QVector4D>

class QPainter;
class StitchLight;

/**
 * Draws a design as sewn thread: every stitch is a thick line with rounded
 * ends, shaded along its length like a small cylinder lit from the upper left.
 *
 * A renderer holds only its lighting model, so one may be made per picture.
 */
class PreviewRenderer
{
public:
    PreviewRenderer();
    virtual ~PreviewRenderer() = default;

    /**
     * render() as a pixmap; for the GUI thread only. Null where render() gives
     * a null image.
     */
    static QPixmap renderToPixmap(const QSharedPointer<Embroidery::EmbPattern> &pattern,
                                  double size);

    /**
     * The design on a transparent ground, without a margin, @p size pixels on
     * its longer side. Null for a null pattern, for extents that have no usable
     * scale (a single point, a line without any height) and for an image that
     * would be larger than LargestSide either way.
     *
     * What drawThread() would paint stitch by stitch, at a tenth of the cost. Of a file
     * with millions of stitches those are left out that others hide, so that no file
     * takes more than about a second at the size of a preview; see DesignPainter.
     *
     * May lengthen the thread list of @p pattern by made-up greys. Any thread. Null also
     * when @p abort said stop.
     */
    QImage render(const QSharedPointer<Embroidery::EmbPattern> &pattern, double size,
                  const IAbortCheck &abort = DummyAbortCheck());

    /**
     * The design as a card shows it, a square of @p size pixels: on white, with a margin
     * that is never drawn into. Every shape fits, also one of a single line. Null when
     * there is no stitch to show, for a size below 1 or above LargestSide, and when
     * @p abort said stop.
     */
    QImage renderCard(const QSharedPointer<Embroidery::EmbPattern> &pattern, int size,
                      const IAbortCheck &abort = DummyAbortCheck());

    /** One stitch, from and to in design units (tenths of a millimetre). */
    void drawThread(QPainter &painter, QPointF &from, const QPointF &to, const QColor &color);

    /** The shading of a stitch of @p color, running along the stitch. */
    QLinearGradient buildGradient(const QPointF &from, const QPointF &to, const QColor &color);

    /** @p color lit where the surface faces @p normal (of length 1); alpha stays. */
    QColor shadeColor(const QColor &color, const QVector3D &normal);

    /** (r, g, b), each from 0 to 1, of 0xAARRGGBB. */
    static QVector3D rgbVector(unsigned int rgb);
    /** (r, g, b, a), each from 0 to 1, of 0xAARRGGBB. */
    static QVector4D rgbaVector(unsigned int rgba);
    /** 0xAARRGGBB of (r, g, b, a); channels above 1 are clipped. */
    static unsigned int rgbaColor(QVector4D &v);

    /** Pixels; a longer side than this is not drawn. */
    static constexpr double LargestSide = 16384.0;

private:
    StitchLight light() const;
    QImage paint(const QList<Embroidery::StitchBlock> &blocks, const QSize &pixels, double scale,
                 const QPointF &offset, const IAbortCheck &abort) const;

    QColor m_lightColor;
    QColor m_ambientColor;
    QVector3D m_lightDirection;
    float m_diffuseFactor;
};
