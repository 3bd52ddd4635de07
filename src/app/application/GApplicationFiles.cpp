// What opening a file means to GApplication.

#include "app/application/GApplication.h"
#include "app/application/GMainWindow.h"
#include "app/frame/GFileDialog.h"
#include "app/frame/GFileTypeRegistry.h"

#include <algorithm>
#include <QFileInfo>

GMainWindow *GApplication::newFile(const QString &fileName)
{
    const GFileType *type = theFileTypeRegistry().typeOrDefault(fileName);
    return type ? qobject_cast<GMainWindow *>(type->newWindow()) : nullptr;
}

void GApplication::newDocument()
{
    if (GMainWindow *window = newFile(QString()))
        window->show();
}

void GApplication::openDocument()
{
    const QString filter =
        GFileDialog::buildFilterFromMap(theFileTypeRegistry().getReadExtensions(), true, true);
    const QString lastName = m_recentFileProvider.lastFileName();
    const QString directory = lastName.isEmpty() ? QString() : QFileInfo(lastName).absolutePath();
    const QString name =
        GFileDialog::getOpenFileName(currentWindow(), tr("Open file"), directory, filter);
    if (!name.isEmpty())
        openFile(name);
}

void GApplication::openFile(const QString &fileName)
{
    if (m_startingUp) {
        m_filesToOpen.append(fileName);
        return;
    }
    if (activeModalWidget())
        return;
    GMainWindow *spare = currentWindow();
    if (spare && (spare->isUsed() || !spare->canOpenFile(fileName)))
        spare = nullptr;
    if (GMainWindow *window = windowShowing(fileName)) {
        window->show();
        window->showRaiseActivateWindow();
        if (spare)
            spare->closeWindow();
        return;
    }
    GMainWindow *target = spare ? spare : lastUnusedWindowFor(fileName);
    const bool reused = target;
    if (!target)
        target = newFile(fileName);
    if (target)
        loadInto(target, fileName, reused);
    else
        openUntyped(fileName);
}

void GApplication::openUntyped(const QString &) {}

GMainWindow *GApplication::windowShowing(const QString &fileName) const
{
    const auto shows = [&](const GMainWindow *window) { return window->fileName() == fileName; };
    const auto found = std::find_if(m_mainWindows.cbegin(), m_mainWindows.cend(), shows);
    return found == m_mainWindows.cend() ? nullptr : *found;
}

GMainWindow *GApplication::lastUnusedWindowFor(const QString &fileName) const
{
    const auto fits = [&](const GMainWindow *window) {
        return !window->isUsed() && window->canOpenFile(fileName);
    };
    const auto found = std::find_if(m_mainWindows.crbegin(), m_mainWindows.crend(), fits);
    return found == m_mainWindows.crend() ? nullptr : *found;
}

void GApplication::loadInto(GMainWindow *window, const QString &fileName, bool reused)
{
    window->raise();
    emit fileOpenRequest();
    if (!window->loadFile(fileName)) {
        if (reused)
            window->restoreWindowState(QString());
        else
            window->closeWindow();
        return;
    }
    window->setCurrentFileName(fileName);
    window->restoreWindowState(QString());
    window->show();
    window->showRaiseActivateWindow();
}
