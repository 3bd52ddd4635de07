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
    return hasCard(index) ? card(index) : nullptr;
}

QAccessibleInterface *GridAccessible::card(int index) const
{
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

QAccessible::State GridAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = true;
    return state;
}

void *GridAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface && scene() != nullptr) {
        return static_cast<QAccessibleTableInterface *>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface *GridAccessible::cellAt(int row, int column) const
{
    constexpr int NoCard = -1;
    return card(column == 0 && hasCard(row) ? row : NoCard);
}

int GridAccessible::selectedCellCount() const
{
    return scene()->selectedCount();
}

QList<QAccessibleInterface *> GridAccessible::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    const QList<int> rows = selectedRows();
    for (const int row : rows) {
        cells.append(card(row));
    }
    return cells;
}

int GridAccessible::selectedColumnCount() const
{
    return selectedColumns().size();
}

QList<int> GridAccessible::selectedColumns() const
{
    return isColumnSelected(0) ? QList<int>{0} : QList<int>();
}

QList<int> GridAccessible::selectedRows() const
{
    QList<int> rows;
    for (int i = 0; i < childCount(); ++i) {
        if (scene()->isSelected(i)) {
            rows.append(i);
        }
    }
    return rows;
}

bool GridAccessible::isColumnSelected(int column) const
{
    return column == 0 && childCount() > 0 && selectedCellCount() == childCount();
}

bool GridAccessible::isRowSelected(int row) const
{
    return hasCard(row) && scene()->isSelected(row);
}

bool GridAccessible::setSelected(int row, bool selected)
{
    if (!hasCard(row)) {
        return false;
    }
    scene()->setSelected(row, selected);
    return true;
}

bool GridAccessible::selectRow(int row)
{
    return setSelected(row, true);
}

bool GridAccessible::unselectRow(int row)
{
    return setSelected(row, false);
}

bool GridAccessible::selectColumn(int column)
{
    if (column == 0) {
        scene()->selectAll();
    }
    return column == 0;
}

bool GridAccessible::unselectColumn(int column)
{
    if (column == 0) {
        scene()->selectNone();
    }
    return column == 0;
}
