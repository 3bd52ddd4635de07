#include "preview/render/StitchLight.h"

#include <algorithm>
#include <cmath>

StitchLight::StitchLight(const QVector3D &ambient, const QVector3D &diffuse,
                         const QVector3D &towardsLamp, float tilt)
    : m_ambient(ambient), m_diffuse(diffuse), m_towardsLamp(towardsLamp), m_tilt(tilt),
      m_perLength(1 / std::sqrt(1 + tilt * tilt))
{
}

StitchLight::Ends StitchLight::on(const QPointF &from, const QPointF &to) const
{
    const float x = float(from.x() - to.x());
    const float y = float(from.y() - to.y());
    const float length = std::sqrt(x * x + y * y);
    // A dot faces upwards.
    if (length < 1e-6f)
        return {lit(m_towardsLamp.z()), lit(m_towardsLamp.z())};
    const float along = (x * m_towardsLamp.x() + y * m_towardsLamp.y()) / length;
    const float up = m_tilt * m_towardsLamp.z();
    return {lit((up + along) * m_perLength), lit((up - along) * m_perLength)};
}

QVector3D StitchLight::facing(const QVector3D &normal) const
{
    return lit(QVector3D::dotProduct(normal, m_towardsLamp));
}

QVector3D StitchLight::lit(float facing) const
{
    return m_ambient + m_diffuse * std::max(0.0f, facing);
}
