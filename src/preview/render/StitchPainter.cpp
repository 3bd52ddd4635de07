#include "preview/render/StitchPainter.h"

#include "preview/render/ColorRamp.h"
#include <algorithm>
#include <cmath>
#include <utility>

/*
 * How a stitch meets the pixels
 *
 * A thread of radius r from a to b covers the points within r of the line between them. A
 * pixel belongs to it when its middle does. The shape bulges nowhere inwards, so each row
 * of pixels holds one run of it, from the leftmost to the rightmost point.
 *
 * Take a as the upper end and let d = b - a. Around the point a + t d of the line, with t
 * from 0 to 1, lies a disc, and in the row at height y that disc begins at
 *
 *     x(t) = ax + t dx - sqrt(r² - h²),  where h = y - ay - t dy.
 *
 * The run begins at the smallest of these. dx(t)/dt = dx - h dy / sqrt(r² - h²) is zero
 * where h = r dx/|d|: there the disc touches the straight left edge. That h belongs to
 *
 *     t = (y - ay - r dx/|d|) / dy,
 *
 * and if this t lies beyond an end of the line, the row runs through the round end, whose
 * disc is that of t = 0 or t = 1. So t is clamped, and one formula serves the edge and
 * both ends. The right end of the run is the same with the other sign of r dx/|d| and of
 * the root. No branches: the compiler works out several rows at a time.
 *
 * Threads of a pixel or less are another matter. There the painter whose picture this is
 * steps along the longer axis, one pixel a step, half a pixel beyond both ends, in fixed
 * point, and mixes the colour in as strongly as the thread is wide.
 */

namespace {

/** Rows that are worked out at a time. */
constexpr int RowsAtATime = 32;
/** Pixels; a thread that wide covers any picture, and its square is still exact enough. */
constexpr double ThickestRadius = 1e5;
/** Beyond this many pixels outside of the picture a line is cut off. */
constexpr double Margin = 4096;
/** Fixed point: 26.6 for places, 16.16 for the smaller axis of a line. */
constexpr int PlaceBits = 6;
constexpr int One = 1 << PlaceBits;
constexpr int Half = One / 2;
constexpr int FineBits = 16;

/** @p color at @p factor / 255 of its strength, in all four channels. */
QRgb weakened(QRgb color, uint factor)
{
    constexpr quint64 lanes = 0x00FF00FF00FF00FF;
    constexpr quint64 halves = 0x0080008000800080;
    quint64 product = ColorRamp::spread(color) * factor;
    product = (product + (product >> 8 & lanes) + halves) >> 8 & lanes;
    return ColorRamp::joined(product);
}

} // namespace

/** A stitch in pixels. */
struct StitchPainter::Line
{
    QPointF a;
    QPointF b;

    Line(const StitchPainter &painter, const QPointF &from, const QPointF &to)
        : a(from * painter.m_scale + painter.m_offset), b(to * painter.m_scale + painter.m_offset)
    {
    }

    /** Cuts off what is so far outside that the arithmetic on pixels would suffer; false when
        nothing is left. */
    bool clip(int width, int height)
    {
        return clip(a.rx(), a.ry(), b.rx(), b.ry(), width) &&
               clip(a.ry(), a.rx(), b.ry(), b.rx(), height);
    }

private:
    static bool clip(double &a, double &aOther, double &b, double &bOther, int size)
    {
        return cut(a, aOther, b, bOther, -Margin, 1) &&
               cut(a, aOther, b, bOther, size + Margin, -1);
    }

    /** Keeps the part on the side of @p limit that @p sign tells. */
    static bool cut(double &a, double &aOther, double &b, double &bOther, double limit, int sign)
    {
        const bool aOutside = (a - limit) * sign < 0;
        const bool bOutside = (b - limit) * sign < 0;
        if (aOutside && bOutside)
            return false;
        if (aOutside != bOutside) {
            const double crossing = aOther + (bOther - aOther) * ((limit - a) / (b - a));
            (aOutside ? a : b) = limit;
            (aOutside ? aOther : bOther) = crossing;
        }
        return true;
    }
};

StitchPainter::StitchPainter(const QSize &size, double scale, const QPointF &offset,
                             double threadWidth)
    : m_image(size, QImage::Format_ARGB32_Premultiplied), m_width(m_image.width()),
      m_height(m_image.height()), m_stride(m_image.bytesPerLine() / int(sizeof(QRgb))),
      m_pixels(reinterpret_cast<QRgb *>(m_image.bits())), m_scale(scale), m_offset(offset),
      m_radius(std::min(threadWidth * scale / 2, ThickestRadius)),
      m_openPixels(qint64(m_width) * m_height)
{
    m_image.fill(0);
    if (!isBand())
        m_coverage = 255 * uint(std::max(256 * threadWidth * scale, 0.0)) >> 8;
}

void StitchPainter::paint(const QPointF &from, const QPointF &to, const Colors &colors)
{
    const Line line(*this, from, to);
    const ColorRamp ramp(line.a, line.b, colors.from, colors.to);
    if (isBand()) {
        trace(line, [this, &ramp](int y, int begin, int end) {
            QRgb *pixels = m_pixels + qptrdiff(y) * m_stride;
            const ColorRamp::Row row = ramp.row(y);
            for (int x = begin; x < end; ++x)
                pixels[x] = row.at(x);
        });
    } else {
        trace(line, [this, &ramp](int y, int x, int) {
            QRgb &pixel = m_pixels[qptrdiff(y) * m_stride + x];
            pixel = weakened(ramp.row(y).at(x), m_coverage) + weakened(pixel, 255 - m_coverage);
        });
    }
}

void StitchPainter::paintBelow(const QPointF &from, const QPointF &to, const Colors &colors)
{
    const Line line(*this, from, to);
    const ColorRamp ramp(line.a, line.b, colors.from, colors.to);
    trace(line, [this, &ramp](int y, int begin, int end) {
        QRgb *pixels = m_pixels + qptrdiff(y) * m_stride;
        for (int x = begin; x < end; ++x) {
            const uint open = 255 - uint(qAlpha(pixels[x]));
            if (open == 0)
                continue;
            pixels[x] += weakened(weakened(ramp.row(y).at(x), m_coverage), open);
            m_openPixels -= qAlpha(pixels[x]) == 255 ? 1 : 0;
        }
    });
}

int StitchPainter::work(const QPointF &from, const QPointF &to) const
{
    constexpr double overhead = 16; // beginning a stitch
    const double width = std::abs(to.x() - from.x()) * m_scale;
    const double height = std::abs(to.y() - from.y()) * m_scale;
    const double longest = m_width + m_height;
    const double thickness = std::min(2 * m_radius + 1, longest);
    return int(overhead + std::min(width + height + thickness, longest) * (thickness + 1));
}

QImage StitchPainter::take()
{
    // All pixels of a band are opaque or untouched, which is the same in both formats.
    if (isBand())
        m_image.reinterpretAsFormat(QImage::Format_ARGB32);
    else
        m_image.convertTo(QImage::Format_ARGB32);
    return std::move(m_image);
}

/** Calls put(y, begin, end) for the run of pixels in each row; of a hairline pixel by pixel. */
template <class Put>
void StitchPainter::trace(const Line &line, Put put)
{
    Line clipped = line;
    if (!clipped.clip(m_width, m_height))
        return;
    if (isBand())
        traceBand(clipped, put);
    else
        traceHairline(clipped, put);
}

template <class Put>
void StitchPainter::traceBand(Line line, Put put) const
{
    if (line.a.y() > line.b.y())
        std::swap(line.a, line.b);
    const float ax = float(line.a.x());
    const float ay = float(line.a.y());
    const float dx = float(line.b.x() - line.a.x());
    const float dy = float(line.b.y() - line.a.y());
    const float r = float(m_radius);
    const float length = std::sqrt(dx * dx + dy * dy);
    const float touch = length > 0 ? r * dx / length : 0;
    const float perRow = 1 / std::max(dy, 1e-6f);
    const float width = float(m_width);
    // A middle that lies on the border belongs to the pixels above and to the left.
    const int first = std::max(0, int(std::floor(line.a.y() - m_radius + 0.5)));
    const int end = std::min(m_height, int(std::floor(line.b.y() + m_radius + 0.5)));

    int begins[RowsAtATime];
    int ends[RowsAtATime];
    for (int row = first; row < end; row += RowsAtATime) {
        const int count = std::min(RowsAtATime, end - row);
        for (int i = 0; i < count; ++i) {
            const float y = float(row + i) + 0.5f - ay;
            const float left = std::min(std::max((y - touch) * perRow, 0.0f), 1.0f);
            const float right = std::min(std::max((y + touch) * perRow, 0.0f), 1.0f);
            const float hLeft = y - left * dy;
            const float hRight = y - right * dy;
            const float from = ax + left * dx - std::sqrt(std::max(r * r - hLeft * hLeft, 0.0f));
            const float to = ax + right * dx + std::sqrt(std::max(r * r - hRight * hRight, 0.0f));
            begins[i] = roundedPositive(std::min(std::max(from, 0.0f), width));
            ends[i] = roundedPositive(std::min(std::max(to, 0.0f), width));
        }
        for (int i = 0; i < count; ++i)
            put(row + i, begins[i], ends[i]);
    }
}

template <class Put>
void StitchPainter::traceHairline(const Line &line, Put put) const
{
    const auto putInside = [this, &put](int x, int y) {
        if (uint(x) < uint(m_width) && uint(y) < uint(m_height))
            put(y, x, x + 1);
    };
    if (line.a == line.b) {
        putInside(qRound(line.a.x()), qRound(line.a.y()));
        return;
    }
    // From here on x is the longer axis and leads from the smaller to the larger place.
    int x1 = int(line.a.x() * One);
    int y1 = int(line.a.y() * One);
    int x2 = int(line.b.x() * One);
    int y2 = int(line.b.y() * One);
    const bool steep = std::abs(x2 - x1) < std::abs(y2 - y1);
    if (steep) {
        std::swap(x1, y1);
        std::swap(x2, y2);
    }
    if (x1 > x2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    if (x1 == x2)
        return;
    const int slope = int((qint64(y2 - y1) << FineBits) / (x2 - x1));
    const int first = x1 >> PlaceBits;
    const int last = x2 >> PlaceBits;
    const int toFirst = first * One + (slope > 0 ? Half : 0) - (x1 - Half);
    int y = y1 * (1 << (FineBits - PlaceBits)) - (slope >> 1) + (toFirst * slope >> PlaceBits);
    for (int x = first; x <= last; ++x, y += slope)
        putInside(steep ? y >> FineBits : x, steep ? x : y >> FineBits);
}
