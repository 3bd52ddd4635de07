#include "preview/grid/SceneIndexPause.h"

SceneIndexPause::SceneIndexPause(QGraphicsScene *scene) : m_scene(scene) {}

SceneIndexPause::~SceneIndexPause()
{
    if (m_begun) {
        m_scene->setItemIndexMethod(QGraphicsScene::BspTreeIndex);
        // A new index learns the size of the scene from its changes only, and
        // without it finds nothing faster than a plain list would.
        emit m_scene->sceneRectChanged(m_scene->sceneRect());
    }
}

void SceneIndexPause::begin()
{
    if (m_scene->itemIndexMethod() != QGraphicsScene::NoIndex) {
        m_scene->setItemIndexMethod(QGraphicsScene::NoIndex);
        m_begun = true;
    }
}
