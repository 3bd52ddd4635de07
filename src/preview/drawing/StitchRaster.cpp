#include "preview/drawing/StitchRaster.h"

#include <algorithm>
#include <cmath>

namespace {

// In pixels. A thinner line is drawn as wide as this and the paler for it.
constexpr double LeastWidth = 1.0;
constexpr double JumpWidth = 1.25;
constexpr double JumpDash = 4.0;
// Half of the way from where a pixel is covered to where it is not.
constexpr double Softness = 0.5;
// Longer lines are cut to the image: single precision would not do for them.
constexpr double LongestLine = 8192.0;

// A share of this is all of a pixel.
constexpr int Whole = 256;

// Cuts the part of a line that lies between `low` and `high` in one coordinate.
bool clipAxis(double from, double along, double low, double high, double &begin, double &end)
{
    if (along == 0.0) {
        return from >= low && from <= high;
    }
    const double atLow = (low - from) / along;
    const double atHigh = (high - from) / along;
    begin = std::max(begin, std::min(atLow, atHigh));
    end = std::min(end, std::max(atLow, atHigh));
    return begin < end;
}

// Narrows `left` to `right` down to where low <= at + step * x <= high holds.
bool narrow(float at, float step, float low, float high, float &left, float &right)
{
    constexpr float Flat = 1e-6f;
    if (std::abs(step) < Flat) {
        return at >= low && at <= high;
    }
    const float x1 = (low - at) / step;
    const float x2 = (high - at) / step;
    left = std::max(left, std::min(x1, x2));
    right = std::min(right, std::max(x1, x2));
    return left <= right;
}

// `share` of 256 parts of an opaque colour, the rest of what is below it.
QRgb mixed(QRgb color, QRgb below, int share)
{
    constexpr QRgb Even = 0x00FF00FF;
    const QRgb rest = QRgb(Whole - share);
    const QRgb redBlue = ((color & Even) * QRgb(share) + (below & Even) * rest) >> 8;
    const QRgb alphaGreen = ((color >> 8) & Even) * QRgb(share) + ((below >> 8) & Even) * rest;
    return (redBlue & Even) | (alphaGreen & ~Even);
}

} // namespace

/** A line in pixels, with all that is worked out once for it. */
struct StitchRaster::Line
{
    float x, y;           // where it begins
    float alongX, alongY; // of length 1
    float length;
    float reach;    // from the middle to where nothing is covered any more
    float strength; // how much of a covered pixel it takes
    float dash;     // of which every other is left out; 0 for none
    Color color;    // where it begins
    Color change;   // from there to its end

    bool isGap(float u) const { return dash > 0.0f && (int(u / dash) & 1) != 0; }

    // Its part in a pixel that is so far from its middle.
    int share(float distance) const
    {
        return int(std::min(reach - distance, 1.0f) * strength * float(Whole));
    }
};

/** A row of the image, and where its first pixel lies in the line's own directions. */
struct StitchRaster::Row
{
    QRgb *pixels;
    float u; // along the line
    float v; // beside it
};

StitchRaster::StitchRaster(QImage *image, const QPointF &origin, double scale)
    : m_bits(image->bits()), m_bytesPerLine(image->bytesPerLine()), m_width(image->width()),
      m_height(image->height()), m_origin(origin), m_scale(scale),
      m_ratio(image->devicePixelRatio())
{
    Q_ASSERT(image->format() == QImage::Format_RGB32 ||
             image->format() == QImage::Format_ARGB32_Premultiplied);
}

void StitchRaster::drawStitch(const QPointF &from, const QPointF &to, QRgb fromColor, QRgb toColor)
{
    draw((from - m_origin) * m_scale, (to - m_origin) * m_scale, fromColor, toColor,
         ThreadWidth * m_scale, 0.0);
}

void StitchRaster::drawJump(const QPointF &from, const QPointF &to, QRgb color)
{
    draw((from - m_origin) * m_scale, (to - m_origin) * m_scale, color, color, JumpWidth * m_ratio,
         JumpDash * m_ratio);
}

void StitchRaster::draw(QPointF from, QPointF to, QRgb fromColor, QRgb toColor, double width,
                        double dash)
{
    const double reach = std::max(width, LeastWidth) / 2.0 + Softness;
    if (std::max(from.x(), to.x()) < -reach || std::min(from.x(), to.x()) > m_width + reach ||
        std::max(from.y(), to.y()) < -reach || std::min(from.y(), to.y()) > m_height + reach) {
        return;
    }
    const auto channels = [](QRgb rgb) {
        return Color{float(qRed(rgb)), float(qGreen(rgb)), float(qBlue(rgb))};
    };
    Color first = channels(fromColor);
    Color last = channels(toColor);
    if ((to - from).manhattanLength() > LongestLine && !clip(from, to, first, last, reach)) {
        return;
    }
    const QPointF along = to - from;
    const double length = std::hypot(along.x(), along.y());
    // A stitch on the spot still is a dot.
    const QPointF direction = length > 0.0 ? along / length : QPointF(1.0, 0.0);
    fill({float(from.x()), float(from.y()), float(direction.x()), float(direction.y()),
          float(length), float(reach), float(std::min(width / LeastWidth, 1.0)), float(dash), first,
          Color{last.r - first.r, last.g - first.g, last.b - first.b}});
}

bool StitchRaster::clip(QPointF &from, QPointF &to, Color &fromColor, Color &toColor,
                        double reach) const
{
    // The round ends of what is left lie outside of the image.
    const double margin = 2.0 * reach;
    const QPointF along = to - from;
    double begin = 0.0;
    double end = 1.0;
    if (!clipAxis(from.x(), along.x(), -margin, m_width + margin, begin, end) ||
        !clipAxis(from.y(), along.y(), -margin, m_height + margin, begin, end)) {
        return false;
    }
    const auto colorAt = [first = fromColor, last = toColor](double at) {
        const float t = float(at);
        return Color{first.r + (last.r - first.r) * t, first.g + (last.g - first.g) * t,
                     first.b + (last.b - first.b) * t};
    };
    fromColor = colorAt(begin);
    toColor = colorAt(end);
    to = from + along * end;
    from += along * begin;
    return true;
}

void StitchRaster::fill(const Line &line)
{
    const float endY = line.y + line.alongY * line.length;
    const int top = std::max(int(std::floor(std::min(line.y, endY) - line.reach)), 0);
    const int bottom = std::min(int(std::ceil(std::max(line.y, endY) + line.reach)), m_height);
    for (int y = top; y < bottom; ++y) {
        fillRow(line, y);
    }
}

void StitchRaster::fillRow(const Line &line, int y)
{
    const float dx = float(Softness) - line.x;
    const float dy = float(y) + float(Softness) - line.y;
    const Row row{reinterpret_cast<QRgb *>(m_bits + qptrdiff(y) * m_bytesPerLine),
                  dx * line.alongX + dy * line.alongY, dy * line.alongX - dx * line.alongY};
    float left = 0.0f;
    float right = float(m_width - 1);
    if (!narrow(row.v, -line.alongY, -line.reach, line.reach, left, right) ||
        !narrow(row.u, line.alongX, -line.reach, line.length + line.reach, left, right)) {
        return;
    }
    const int begin = int(std::ceil(left));
    const int end = int(right) + 1;
    float bodyLeft = left;
    float bodyRight = right;
    if (!narrow(row.u, line.alongX, 0.0f, line.length, bodyLeft, bodyRight)) {
        fillCap(line, row, begin, end);
        return;
    }
    const int body = int(std::ceil(bodyLeft));
    const int bodyEnd = int(bodyRight) + 1;
    fillCap(line, row, begin, body);
    fillBody(line, row, body, bodyEnd);
    fillCap(line, row, std::max(bodyEnd, body), end);
}

void StitchRaster::fillBody(const Line &line, const Row &row, int x, int end)
{
    // The colour runs in fixed point, a half being added so that cutting it off rounds.
    constexpr float One = 65536.0f;
    const float perLength = line.length > 0.0f ? 1.0f / line.length : 0.0f;
    float u = row.u + float(x) * line.alongX;
    float v = row.v - float(x) * line.alongY;
    const float t = std::clamp(u * perLength, 0.0f, 1.0f);
    int r = int((line.color.r + line.change.r * t + 0.5f) * One);
    int g = int((line.color.g + line.change.g * t + 0.5f) * One);
    int b = int((line.color.b + line.change.b * t + 0.5f) * One);
    const float step = line.alongX * perLength * One;
    const int stepR = int(line.change.r * step);
    const int stepG = int(line.change.g * step);
    const int stepB = int(line.change.b * step);
    for (; x < end; ++x) {
        const int share = line.share(std::abs(v));
        if (share > 0 && !line.isGap(u)) {
            const QRgb color = qRgb(r >> 16, g >> 16, b >> 16);
            row.pixels[x] = share < Whole ? mixed(color, row.pixels[x], share) : color;
        }
        u += line.alongX;
        v -= line.alongY;
        r += stepR;
        g += stepG;
        b += stepB;
    }
}

void StitchRaster::fillCap(const Line &line, const Row &row, int x, int end)
{
    for (; x < end; ++x) {
        const float u = row.u + float(x) * line.alongX;
        const float v = row.v - float(x) * line.alongY;
        const bool atEnd = u > line.length * 0.5f;
        const float beyond = atEnd ? u - line.length : u;
        const int share = line.share(std::sqrt(beyond * beyond + v * v));
        if (share > 0) {
            const float t = atEnd ? 1.0f : 0.0f;
            const QRgb color = qRgb(qRound(line.color.r + line.change.r * t),
                                    qRound(line.color.g + line.change.g * t),
                                    qRound(line.color.b + line.change.b * t));
            row.pixels[x] = share < Whole ? mixed(color, row.pixels[x], share) : color;
        }
    }
}
