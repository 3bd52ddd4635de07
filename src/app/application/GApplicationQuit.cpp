// How GApplication comes to its end: by its user, its windows, the system or the session.

#include "app/application/GApplication.h"
#include "app/application/GMainWindow.h"
#include "base/qt/Application.h"

#include <algorithm>
#include <chrono>
#include <QFileOpenEvent>
#include <QSessionManager>
#include <QThread>

#ifdef Q_OS_MACOS
#include <QColorDialog>
#endif

namespace {

constexpr std::chrono::milliseconds IdlePollInterval(20);

#ifdef Q_OS_MACOS
constexpr bool StaysWithoutWindow = true;
#else
constexpr bool StaysWithoutWindow = false;
#endif

} // namespace

void GApplication::prepareToQuit()
{
    m_quitTimer.setSingleShot(true);
    m_quitTimer.setInterval(IdlePollInterval);
    connect(&m_quitTimer, &QTimer::timeout, this, &GApplication::quitWhenIdle);
    // A session whose end is called off must find its windows where they were.
    QtApplication::keepWindowsAtSessionEnd<GApplication>();
#ifndef QT_NO_SESSIONMANAGER
    connect(this, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager &manager) { guarded([&] { saveForSessionEnd(manager); }); });
#endif
}

bool GApplication::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Close:
        closeAllWindowsAndQuit();
        event->ignore();
        return true;
    case QEvent::Quit:
        // The session ends; nobody has asked the windows yet.
        if (m_mainWindows.isEmpty())
            break;
        quitWhenIdle();
        event->ignore();
        return true;
    case QEvent::ApplicationActivate:
        emit activate();
        break;
    case QEvent::FileOpen:
        openFile(static_cast<QFileOpenEvent *>(event)->file());
        return true;
    default:
        break;
    }
    return QApplication::event(event);
}

void GApplication::registerMainWindow(GMainWindow *window)
{
    m_mainWindows.append(window);
    updateWindowMenu();
}

void GApplication::unregisterMainWindow(GMainWindow *window)
{
    m_mainWindows.removeOne(window);
    // A window that could not be made leaves the end to whoever wanted it; outside of exec()
    // there is nothing to end.
    const bool isEnd =
        !StaysWithoutWindow && !m_startingUp && QThread::currentThread()->loopLevel() > 0;
    if (m_mainWindows.isEmpty() && (m_quitting || isEnd))
        quit();
}

bool GApplication::closeAllWindowsAndQuit()
{
#ifdef Q_OS_MACOS
    // Dismisses the colour panel of the platform, which would keep the program alive.
    {
        QColorDialog panel;
        panel.setOption(QColorDialog::NoButtons);
        panel.setCurrentColor(Qt::white);
    }
#endif
    const QList<GMainWindow *> windows = m_mainWindows;
    for (GMainWindow *window : windows) {
        if (!window->closeWindow())
            return false;
    }
    m_quitting = true;
    if (m_mainWindows.isEmpty())
        quit();
    return true;
}

void GApplication::quitWhenIdle()
{
    if (!isBusy()) {
        closeAllWindowsAndQuit();
        return;
    }
    cancelWork();
    m_quitTimer.start();
}

/** A window must outlive the event loops that its work and its dialogs are running. */
bool GApplication::isBusy() const
{
    const auto windowIsBusy = [](const GMainWindow *window) { return window->isBusy(); };
    return m_startingUp || QThread::currentThread()->loopLevel() > 1 ||
           std::any_of(m_mainWindows.begin(), m_mainWindows.end(), windowIsBusy);
}

void GApplication::cancelWork()
{
    for (GMainWindow *window : qAsConst(m_mainWindows)) {
        if (window->isBusy())
            window->cancelWork();
    }
    // As if the user had pressed Escape: what is asked is answered with No.
    if (QWidget *popup = activePopupWidget())
        popup->close();
    else if (QWidget *dialog = activeModalWidget())
        dialog->close();
}

#ifndef QT_NO_SESSIONMANAGER
void GApplication::saveForSessionEnd(QSessionManager &manager)
{
    for (GMainWindow *window : qAsConst(m_mainWindows)) {
        if (window->saveForSessionEnd() || !manager.allowsErrorInteraction())
            continue;
        const bool mayEnd = window->confirmClose();
        manager.release();
        if (!mayEnd)
            manager.cancel();
    }
}
#endif
