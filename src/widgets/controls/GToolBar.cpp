#include "widgets/controls/GToolBar.h"

#include <QActionEvent>
#include <QToolButton>

namespace {

constexpr int GapWidth = 8;

} // namespace

GToolBar::GToolBar(const QString &title, QWidget *parent) : QToolBar(title, parent)
{
    setMovable(false);
    setFloatable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    toggleViewAction()->setVisible(false);
}

void GToolBar::addSeparator()
{
    addSpacer(QSizePolicy::Fixed);
    addSpacer(QSizePolicy::Fixed);
}

void GToolBar::addExpandingSeparator()
{
    addSpacer(QSizePolicy::Expanding);
}

void GToolBar::actionEvent(QActionEvent *event)
{
    QToolBar::actionEvent(event);
    if (event->type() != QEvent::ActionAdded && event->type() != QEvent::ActionChanged)
        return;
    if (auto *button = qobject_cast<QToolButton *>(widgetForAction(event->action()))) {
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleName(event->action()->iconText());
    }
}

void GToolBar::addSpacer(QSizePolicy::Policy horizontalPolicy)
{
    auto *spacer = new QWidget(this);
    spacer->setSizePolicy(horizontalPolicy, QSizePolicy::Preferred);
    spacer->setMinimumWidth(GapWidth);
    spacer->setAttribute(Qt::WA_TransparentForMouseEvents);
    addWidget(spacer);
}
