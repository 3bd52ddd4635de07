#include "preview/grid/GridPlace.h"

#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"
#include <QScrollBar>

namespace {

int topOf(int card, const GridGraphicsView *view)
{
    return view->mapFromScene(view->gridScene()->sheetLayout().rectOf(card).topLeft()).y();
}

} // namespace

GridPlace::GridPlace(const GridGraphicsView *view)
{
    const QScrollBar *bar = view->verticalScrollBar();
    if (bar->value() == bar->minimum()) {
        return;
    }
    const GridPreviewScene *scene = view->gridScene();
    const int height = view->viewport()->height();
    const int first = scene->sheetLayout().firstIndexBelow(view->mapToScene(QPoint()).y());
    for (int i = first; i < scene->count() && topOf(i, view) < height; ++i) {
        m_shown.append(qMakePair(scene->fileAt(i), topOf(i, view)));
    }
}

void GridPlace::restore(GridGraphicsView *view) const
{
    QScrollBar *bar = view->verticalScrollBar();
    for (const auto &shown : m_shown) {
        const int index = view->gridScene()->indexOf(shown.first);
        if (index >= 0) {
            const int top = topOf(index, view);
            bar->setValue(bar->value() + top - shown.second);
            return;
        }
    }
    bar->setValue(bar->minimum());
}
