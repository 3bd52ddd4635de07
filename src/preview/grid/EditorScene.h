#pragma once

#include <QGraphicsScene>

/**
 * A scene that is shown by an EditorGraphicsView. The view tells it what happens
 * through the hooks below, all empty here.
 */
class EditorScene : public QGraphicsScene
{
    Q_OBJECT

public:
    explicit EditorScene(QObject *parent = nullptr);

    /** The view has this many pixels. */
    virtual void setEditorSize(const QSize &size);
    /** The pointer came into the view. */
    virtual void enter();
    /** The pointer left the view. */
    virtual void leave();
    /** The view draws @p factor pixels per scene unit. */
    virtual void scaleFactorChanged(double factor);
    /** The view is about to paint while it shows @p area, in scene units. */
    virtual void areaExposed(const QRectF &area);
};
