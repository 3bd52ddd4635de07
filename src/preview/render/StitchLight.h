#pragma once

#include <QPointF>
#include <QVector3D>

/**
 * The light on the two ends of a stitch, whose surface bends down along it like that of
 * a lying cylinder. The direction of the stitch has length 1 and the tilt of the ends is
 * the same for all, so the length of the surface normals is known beforehand.
 */
class StitchLight
{
public:
    /**
     * @param ambient, diffuse (r, g, b) of the light from everywhere and of the lamp
     * @param towardsLamp of length 1
     * @param tilt z component of the normals at the ends before they are normalised
     */
    StitchLight(const QVector3D &ambient, const QVector3D &diffuse, const QVector3D &towardsLamp,
                float tilt);

    /** What (r, g, b) of the thread are to be multiplied with. */
    struct Ends
    {
        QVector3D from;
        QVector3D to;
    };

    Ends on(const QPointF &from, const QPointF &to) const;

    /** The light where the surface faces @p normal, of length 1. */
    QVector3D facing(const QVector3D &normal) const;

private:
    QVector3D lit(float facing) const;

    QVector3D m_ambient;
    QVector3D m_diffuse;
    QVector3D m_towardsLamp;
    float m_tilt;
    float m_perLength; ///< 1 over the length of the normals
};
