#pragma once

#include <algorithm>
#include <QColor>
#include <QPointF>

/** The nearest whole number; @p value is not negative. A call of lround would cost more. */
inline int roundedPositive(float value)
{
    return int(value + 0.5f); // NOLINT(bugprone-incorrect-roundings)
}

/**
 * The colour along a line: even from one end to the other, beyond the ends that of the
 * end. The place of a pixel along the line is linear in its row and column, so a pixel
 * costs one multiplication for its place and one for all four channels.
 */
class ColorRamp
{
public:
    /** @param a, b in pixels; when they are equal all pixels have the colour of @p a */
    ColorRamp(const QPointF &a, const QPointF &b, QRgb colorAtA, QRgb colorAtB)
        : m_start(spread(colorAtA) * Steps + Halves),
          m_difference(spread(colorAtB) - spread(colorAtA)), m_a(a)
    {
        const QPointF d = b - a;
        const double square = QPointF::dotProduct(d, d);
        const double perPixel = square > 0 ? Steps / square : 0;
        m_perColumn = float(d.x() * perPixel);
        m_perRow = float(d.y() * perPixel);
    }

    /** The ramp in one row of pixels. */
    class Row
    {
    public:
        /** The colour in the middle of a pixel. */
        QRgb at(int x) const
        {
            const float place = m_first + float(x) * m_ramp.m_perColumn;
            const int step = roundedPositive(std::min(std::max(place, 0.0f), float(Steps)));
            return joined((m_ramp.m_start + quint64(step) * m_ramp.m_difference) >> 8 & Lanes);
        }

    private:
        friend class ColorRamp;
        Row(const ColorRamp &ramp, float first) : m_ramp(ramp), m_first(first) {}

        const ColorRamp &m_ramp;
        float m_first;
    };

    Row row(int y) const
    {
        const float down = float(y + 0.5 - m_a.y());
        const float across = float(0.5 - m_a.x());
        return Row(*this, down * m_perRow + across * m_perColumn);
    }

    /** The four channels, each with eight bits of room above it. */
    static constexpr quint64 spread(QRgb color)
    {
        return quint64(color & 0xFF00FF00) << 24 | (color & 0x00FF00FF);
    }
    static constexpr QRgb joined(quint64 channels) { return QRgb(channels) | QRgb(channels >> 24); }

private:
    // A channel times this fits into sixteen bits. The difference of the two colours is a
    // plain number: what one channel borrows from the next is paid back by the sum.
    static constexpr int Steps = 256;
    static constexpr quint64 Lanes = 0x00FF00FF00FF00FF;
    static constexpr quint64 Halves = 0x0080008000800080;

    quint64 m_start;
    quint64 m_difference;
    QPointF m_a;
    float m_perColumn;
    float m_perRow;
};
