#pragma once

#include <QGraphicsScene>

/**
 * Leaves a scene without its index from begin() to the end of this object's
 * life, so that many items can be moved or deleted at once. Moving them one by
 * one in the index costs many times as much as making the index anew.
 */
class SceneIndexPause
{
public:
    explicit SceneIndexPause(QGraphicsScene *scene);
    ~SceneIndexPause();
    SceneIndexPause(const SceneIndexPause &) = delete;
    SceneIndexPause &operator=(const SceneIndexPause &) = delete;

    /** May be called again, and inside another pause of the same scene. */
    void begin();

private:
    QGraphicsScene *m_scene;
    bool m_begun = false;
};
