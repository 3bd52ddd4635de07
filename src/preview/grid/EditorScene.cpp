#include "preview/grid/EditorScene.h"

EditorScene::EditorScene(QObject *parent) : QGraphicsScene(parent) {}

void EditorScene::setEditorSize(const QSize &) {}

void EditorScene::enter() {}

void EditorScene::leave() {}

void EditorScene::scaleFactorChanged(double) {}

void EditorScene::areaExposed(const QRectF &) {}
