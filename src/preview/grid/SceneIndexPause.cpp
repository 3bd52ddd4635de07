#include "preview/grid/SceneIndexPause.h"

namespace {

// The scene would choose a depth by the number of its items. It halves the sheet by
// turns across and along, and a sheet is long and narrow: at 17 levels, for a hundred
// thousand cards, every card would stand in some fifty of the columns.
constexpr int IndexDepth = 10;

} // namespace

SceneIndexPause::SceneIndexPause(QGraphicsScene *scene) : m_scene(scene) {}

SceneIndexPause::~SceneIndexPause()
{
    if (m_begun) {
        m_scene->setItemIndexMethod(QGraphicsScene::BspTreeIndex);
        m_scene->setBspTreeDepth(IndexDepth);
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
