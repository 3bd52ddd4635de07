#pragma once

#include <QImage>
#include <QPointF>

/**
 * Draws stitches into pixels: thick lines with round, soft edges whose colour
 * runs from one end to the other. It takes a fraction of the time that QPainter
 * needs for as many pens with a gradient, so that a large design follows the hand.
 */
class StitchRaster
{
public:
    /**
     * Draws into @p image, which must be RGB32 or premultiplied ARGB32, is not owned
     * and must outlive the raster. Its upper left corner shows the point @p origin of
     * the design, and a tenth of a millimetre is @p scale pixels long.
     */
    StitchRaster(QImage *image, const QPointF &origin, double scale);

    /** A stitch, in tenths of a millimetre. */
    void drawStitch(const QPointF &from, const QPointF &to, QRgb fromColor, QRgb toColor);

    /** The way of a jump: a thin dashed line, as wide at any scale and on any screen. */
    void drawJump(const QPointF &from, const QPointF &to, QRgb color);

    /** Of a stitch, in tenths of a millimetre. */
    static constexpr double ThreadWidth = 4.0;

private:
    /** Channels from 0 to 255. */
    struct Color
    {
        float r, g, b;
    };
    struct Line;
    struct Row;

    void draw(QPointF from, QPointF to, QRgb fromColor, QRgb toColor, double width, double dash);
    bool clip(QPointF &from, QPointF &to, Color &fromColor, Color &toColor, double reach) const;
    void fill(const Line &line);
    void fillRow(const Line &line, int y);
    static void fillBody(const Line &line, const Row &row, int x, int end);
    static void fillCap(const Line &line, const Row &row, int x, int end);

    uchar *m_bits;
    int m_bytesPerLine;
    int m_width;
    int m_height;
    QPointF m_origin;
    double m_scale;
    double m_ratio;
};
