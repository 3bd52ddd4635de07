#include "ui/design/ScenePainter.h"

void ScenePainter::paint(const DesignScene &scene, int number)
{
    if (number != m_latest || m_cancelled || !draw(scene))
        return;
    emit painted(m_last);
}

bool ScenePainter::draw(const DesignScene &scene)
{
    const bool goesOn = !m_last.image.isNull() && m_last.scene.hasSameView(scene) &&
                        m_last.scene.endPoint <= scene.endPoint;
    if (!goesOn) {
        // The one before may still be shown: it is left to whoever has it.
        m_last.image = QImage(scene.size, QImage::Format_RGB32);
        if (m_last.image.isNull())
            return false;
        m_last.image.setDevicePixelRatio(scene.ratio);
        m_last.image.fill(scene.style.fabric);
    }
    const DesignDrawing::Range range{goesOn ? m_last.scene.endPoint : 0, scene.endPoint};
    m_last.scene = scene;
    return DesignDrawing(scene.order, scene.style)
        .paint(m_last.image, scene.origin, scene.scale, range, &m_cancelled);
}
