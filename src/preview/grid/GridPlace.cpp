#include "preview/grid/GridPlace.h"

#include "preview/grid/GridEmbroideryItem.h"
#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"
#include <QScrollBar>

namespace {

int topOf(const GridEmbroideryItem *card, const GridGraphicsView *view)
{
    return view->mapFromScene(card->pos()).y();
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
    for (int i = scene->firstIndexBelow(view->mapToScene(QPoint()).y()); i < scene->count(); ++i) {
        const GridEmbroideryItem *card = scene->cardAt(i);
        if (topOf(card, view) >= height) {
            break;
        }
        m_shown.append(qMakePair(card->file(), topOf(card, view)));
    }
}

void GridPlace::restore(GridGraphicsView *view) const
{
    QScrollBar *bar = view->verticalScrollBar();
    for (const auto &shown : m_shown) {
        const int index = view->gridScene()->indexOf(shown.first);
        if (index >= 0) {
            const int top = topOf(view->gridScene()->cardAt(index), view);
            bar->setValue(bar->value() + top - shown.second);
            return;
        }
    }
    bar->setValue(bar->minimum());
}
