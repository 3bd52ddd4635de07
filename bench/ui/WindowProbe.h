#pragma once

#include "support/Figure.h"

#include <QAction>
#include <QCoreApplication>
#include <QtTest>
#include <QWidget>

/** What the measurements of the window have in common. */
namespace WindowProbe {

constexpr int Rounds = 3;

/** Lets everything come to an end that goes on in slices or a moment later. */
inline void settle()
{
    QTest::qWait(400);
}

/** Milliseconds of the window's thread, up to and with the painted frame. */
inline double take(const std::function<void()> &action)
{
    return Figure::milliseconds([&] {
        action();
        QCoreApplication::processEvents();
    });
}

/** The command that @p keys are the shortcut of. */
inline QAction *command(const QWidget *window, const QKeySequence &keys)
{
    const auto actions = window->findChildren<QAction *>();
    const auto found = std::find_if(actions.begin(), actions.end(), [&](const QAction *action) {
        return action->shortcuts().contains(keys);
    });
    if (found == actions.end())
        qFatal("there is no command for %s", qPrintable(keys.toString()));
    return *found;
}

} // namespace WindowProbe
