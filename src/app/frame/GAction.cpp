#include "app/frame/GAction.h"

#include "widgets/style/GIcon.h"

GAction::GAction(QObject *parent) : GAction(QString(), parent) {}

GAction::GAction(const QString &text, QObject *parent, const char *slot) : QAction(text, parent)
{
    setIconVisibleInMenu(false);
    setMenuRole(QAction::NoRole);
    connectToParent(slot);
}

GAction::GAction(const GIcon &icon, const QString &text, QObject *parent, const char *slot)
    : GAction(text, parent, slot)
{
    setIcon(icon);
}

GAction *GAction::separator(QObject *parent)
{
    auto *action = new GAction(parent);
    action->setSeparator(true);
    return action;
}

void GAction::connectToParent(const char *slot)
{
    if (slot)
        connect(this, SIGNAL(triggered(bool)), parent(), slot);
}
