#include "preview/grid/CardAccessible.h"

#include "preview/grid/CardTexts.h"
#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"
#include <QKeySequence>
#include <QTimer>

CardAccessible::CardAccessible(GridGraphicsView *view, int index) : m_view(view), m_index(index)
{
    if (index >= 0 && index < view->gridScene()->count()) {
        m_file = view->gridScene()->fileAt(index);
    }
}

bool CardAccessible::isValid() const
{
    return m_view && m_file && m_index < m_view->gridScene()->count() &&
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
        return CardTexts::name(*m_file);
    case QAccessible::Description:
        return CardTexts::description(*m_file);
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
    state.selected = isSelected();
    state.focused = m_view->hasFocus() && m_view->gridScene()->currentIndex() == m_index;
    const QWidget *viewport = m_view->viewport();
    const QRect shown(viewport->mapToGlobal(QPoint()), viewport->size());
    state.offscreen = !shown.intersects(rect());
    return state;
}

void *CardAccessible::interface_cast(QAccessible::InterfaceType type)
{
    switch (type) {
    case QAccessible::TableCellInterface:
        return static_cast<QAccessibleTableCellInterface *>(this);
    case QAccessible::ActionInterface:
        return static_cast<QAccessibleActionInterface *>(this);
    default:
        return nullptr;
    }
}

bool CardAccessible::isSelected() const
{
    return isValid() && m_view->gridScene()->isSelected(m_index);
}

const QString &CardAccessible::openAction()
{
    static const QString name = QStringLiteral("Open");
    return name;
}

const QString &CardAccessible::favoriteAction()
{
    static const QString name = QStringLiteral("Favorite");
    return name;
}

QStringList CardAccessible::actionNames() const
{
    return {pressAction(),    openAction(),     toggleAction(),
            favoriteAction(), showMenuAction(), setFocusAction()};
}

QString CardAccessible::localizedActionName(const QString &name) const
{
    if (name == openAction()) {
        return GridGraphicsView::tr("Open");
    }
    if (name == favoriteAction()) {
        return GridGraphicsView::tr("Favorite");
    }
    return QAccessibleActionInterface::localizedActionName(name);
}

QString CardAccessible::localizedActionDescription(const QString &name) const
{
    if (name == pressAction()) {
        return GridGraphicsView::tr("Selects this design alone");
    }
    if (name == toggleAction()) {
        return GridGraphicsView::tr("Selects this design beside others, or no longer does");
    }
    if (name == openAction()) {
        return GridGraphicsView::tr("Opens the design in its window");
    }
    if (name == favoriteAction()) {
        return GridGraphicsView::tr("Marks the design as a favorite, or no longer does");
    }
    return QAccessibleActionInterface::localizedActionDescription(name);
}

void CardAccessible::doAction(const QString &name)
{
    if (!isValid()) {
        return;
    }
    GridPreviewScene *scene = m_view->gridScene();
    if (name == favoriteAction()) {
        m_file->setFavorite(!m_file->isFavorite());
        QAccessibleEvent event(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
        return;
    }
    m_view->goTo(m_index);
    if (name == pressAction()) {
        scene->selectOnly(m_index);
    } else if (name == toggleAction()) {
        scene->setSelected(m_index, !isSelected());
    } else if (name == setFocusAction()) {
        m_view->setFocus(Qt::OtherFocusReason);
    } else if (name == openAction()) {
        // Whoever asks waits for an answer; a menu gives it when it is closed only.
        QTimer::singleShot(0, scene, [scene, file = m_file] { scene->requestOpen(file); });
    } else if (name == showMenuAction()) {
        QTimer::singleShot(0, m_view, &GridGraphicsView::openContextMenu);
    }
}

QStringList CardAccessible::keyBindingsForAction(const QString &name) const
{
    const auto keys = [](int key) {
        return QStringList(QKeySequence(key).toString(QKeySequence::NativeText));
    };
    if (name == openAction()) {
        return keys(Qt::Key_Return);
    }
    if (name == toggleAction()) {
        return keys(int(Qt::CTRL) | Qt::Key_Return);
    }
    if (name == favoriteAction()) {
        return keys(Qt::Key_F);
    }
    return name == showMenuAction() ? keys(int(Qt::SHIFT) | Qt::Key_F10) : QStringList();
}
