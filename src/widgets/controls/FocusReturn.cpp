#include "widgets/controls/FocusReturn.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

FocusReturn::FocusReturn(QWidget *window) : QObject(window), m_window(window)
{
    window->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow *active) {
        if (active && active == m_window->windowHandle() && m_window->isHidden())
            bringHome();
    });
}

bool FocusReturn::eventFilter(QObject *watched, QEvent *event)
{
    // Whoever has turned to another program stays there.
    const bool isOurs = QGuiApplication::applicationState() == Qt::ApplicationActive;
    if (event->type() == QEvent::Hide && isOurs)
        bringHome();
    return QObject::eventFilter(watched, event);
}

void FocusReturn::bringHome()
{
    const QWidget *below = m_window->parentWidget();
    QWindow *gone = m_window->windowHandle();
    if (!below || !gone)
        return;
    // To activate a window below the active one, Qt moves the keyboard by itself, and that
    // tells nothing when it is there already; only for another window it asks the window
    // manager, which answers in any case.
    QWindow *transientParent = gone->transientParent();
    gone->setTransientParent(nullptr);
    below->window()->activateWindow();
    gone->setTransientParent(transientParent);
}
