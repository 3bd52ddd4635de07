#pragma once

#include <QCoreApplication>

/** What Qt 5 has to be told, and Qt 6 does by itself. */
namespace QtApplication {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

/** Has sizes follow the scale of the screen. To be called ahead of the application object. */
inline void scaleWithScreens()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
}

/** Has pictures use every pixel of a screen that scales. */
inline void useFinePixmaps()
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

/** Has title bars without a button that asks what something is. */
inline void leaveOutHelpButtons()
{
    QCoreApplication::setAttribute(Qt::AA_DisableWindowContextHelpButton);
}

/** Leaves the windows alone while the session asks whether it may end. */
template <class Application>
void keepWindowsAtSessionEnd()
{
    Application::setFallbackSessionManagementEnabled(false);
}

#else

inline void scaleWithScreens() {}
inline void useFinePixmaps() {}
inline void leaveOutHelpButtons() {}

template <class Application>
void keepWindowsAtSessionEnd()
{
}

#endif

} // namespace QtApplication
