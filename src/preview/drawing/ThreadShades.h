#pragma once

#include "preview/render/PreviewRenderer.h"
#include <array>
#include <QColor>
#include <QPointF>

/**
 * The colours of lit stitches of one thread: those of PreviewRenderer, which are
 * worked out once for each of so many directions and not for every stitch.
 */
class ThreadShades
{
public:
    explicit ThreadShades(const QColor &color);

    struct Ends
    {
        QRgb from;
        QRgb to;
    };
    /** The colours at the two ends of a stitch that leads @p along. */
    Ends of(const QPointF &along);

private:
    // Even, so that each direction has its opposite; fine enough to show no steps.
    static constexpr int Directions = 256;

    QRgb shade(int direction);

    PreviewRenderer m_renderer;
    QColor m_color;
    // 0 where not worked out yet: no lit colour is transparent.
    std::array<QRgb, Directions> m_shades{};
    QRgb m_dot;
};
