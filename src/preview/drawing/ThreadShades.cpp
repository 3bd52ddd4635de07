#include "preview/drawing/ThreadShades.h"

#include <cmath>
#include <QLinearGradient>

namespace {

constexpr double Turn = 2.0 * M_PI;

} // namespace

ThreadShades::ThreadShades(const QColor &color)
    : m_color(color), m_dot(m_renderer.buildGradient({}, {}, color).stops().first().second.rgb())
{
}

ThreadShades::Ends ThreadShades::of(const QPointF &along)
{
    if (along.isNull()) {
        return {m_dot, m_dot};
    }
    const double turns = std::atan2(along.y(), along.x()) / Turn;
    const int direction = int(std::lround(turns * Directions)) + Directions;
    return {shade(direction % Directions), shade((direction + Directions / 2) % Directions)};
}

QRgb ThreadShades::shade(int direction)
{
    QRgb &shade = m_shades[std::size_t(direction)];
    if (shade == 0) {
        const double angle = direction * Turn / Directions;
        const QPointF along(std::cos(angle), std::sin(angle));
        shade = m_renderer.buildGradient({}, along, m_color).stops().first().second.rgb();
    }
    return shade;
}
