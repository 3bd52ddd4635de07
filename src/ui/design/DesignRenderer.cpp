#include "ui/design/DesignRenderer.h"

#include "ui/design/ScenePainter.h"

DesignRenderer::DesignRenderer(QObject *parent) : QObject(parent), m_painter(new ScenePainter)
{
    qRegisterMetaType<DesignScene>();
    qRegisterMetaType<DesignPicture>();
    m_painter->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_painter, &QObject::deleteLater);
    connect(m_painter, &ScenePainter::painted, this, &DesignRenderer::rendered);
    m_thread.start(QThread::LowPriority);
}

DesignRenderer::~DesignRenderer()
{
    m_painter->cancel();
    m_thread.quit();
    m_thread.wait();
}

void DesignRenderer::request(const DesignScene &scene)
{
    const int number = m_painter->nextNumber();
    QMetaObject::invokeMethod(
        m_painter, [painter = m_painter, scene, number] { painter->paint(scene, number); },
        Qt::QueuedConnection);
}
