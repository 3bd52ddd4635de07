#include "preview/grid/CardAccessible.h"

#include "preview/grid/GridEmbroideryItem.h"
#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"

CardAccessible::CardAccessible(GridGraphicsView *view, int index)
    : m_view(view), m_index(index), m_file(view->gridScene()->fileAt(index))
{
}

GridEmbroideryItem *CardAccessible::card() const
{
    return m_view->gridScene()->cardAt(m_index);
}

bool CardAccessible::isValid() const
{
    return m_view && m_index < m_view->gridScene()->count() &&
           m_view->gridScene()->fileAt(m_index) == m_file;
}

QAccessibleInterface *CardAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(m_view);
}

QString CardAccessible::text(QAccessible::Text kind) const
{
    if (!isValid()) {
        return QString();
    }
    switch (kind) {
    case QAccessible::Name:
        return card()->fullName();
    case QAccessible::Description:
        return card()->description();
    default:
        return QString();
    }
}

QRect CardAccessible::rect() const
{
    return isValid() ? m_view->screenRectOf(m_index) : QRect();
}

QAccessible::State CardAccessible::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.selectable = true;
    state.multiSelectable = true;
    state.extSelectable = true;
    state.focusable = true;
    state.selected = m_view->gridScene()->isSelected(m_index);
    state.focused = m_view->hasFocus() && m_view->gridScene()->currentIndex() == m_index;
    const QWidget *viewport = m_view->viewport();
    const QRect shown(viewport->mapToGlobal(QPoint()), viewport->size());
    state.offscreen = !shown.intersects(rect());
    return state;
}
