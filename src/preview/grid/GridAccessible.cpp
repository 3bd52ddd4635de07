#include "preview/grid/GridAccessible.h"

#include "preview/grid/CardAccessible.h"
#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"

namespace {

QAccessibleInterface *createForGrid(const QString &, QObject *object)
{
    auto *view = qobject_cast<GridGraphicsView *>(object);
    return view != nullptr ? new GridAccessible(view) : nullptr;
}

} // namespace

void GridAccessible::install()
{
    QAccessible::installFactory(createForGrid);
}

GridAccessible::GridAccessible(GridGraphicsView *view) : QAccessibleWidget(view, QAccessible::List)
{
}

GridAccessible::~GridAccessible()
{
    for (const QAccessible::Id id : qAsConst(m_cards)) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

GridGraphicsView *GridAccessible::view() const
{
    return static_cast<GridGraphicsView *>(widget());
}

GridPreviewScene *GridAccessible::scene() const
{
    return view()->gridScene();
}

int GridAccessible::childCount() const
{
    return scene() != nullptr ? scene()->count() : 0;
}

QAccessibleInterface *GridAccessible::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    if (const QAccessible::Id id = m_cards.value(index)) {
        QAccessibleInterface *known = QAccessible::accessibleInterface(id);
        if (known != nullptr && known->isValid()) {
            return known;
        }
        // A client that still holds the item of a card that went must not take this one for it.
        QAccessible::deleteAccessibleInterface(id);
    }
    auto *card = new CardAccessible(view(), index);
    m_cards.insert(index, QAccessible::registerAccessibleInterface(card));
    return card;
}

QAccessibleInterface *GridAccessible::childAt(int x, int y) const
{
    if (scene() == nullptr) {
        return nullptr;
    }
    const QPoint pos = view()->viewport()->mapFromGlobal(QPoint(x, y));
    return child(scene()->sheetLayout().indexAt(view()->mapToScene(pos)));
}

QAccessibleInterface *GridAccessible::focusChild() const
{
    return scene() != nullptr && view()->hasFocus() ? child(scene()->currentIndex()) : nullptr;
}

int GridAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *card = dynamic_cast<const CardAccessible *>(child);
    return card != nullptr && card->isValid() ? card->index() : -1;
}
