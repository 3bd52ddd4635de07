#pragma once

#include "app/application/GMainWindow.h"
#include "base/GSettings.h"

#include <QApplication>

/** A window with a document that is whatever the test says. */
class TestWindow : public GMainWindow
{
    Q_OBJECT

public:
    Q_INVOKABLE TestWindow() = default;
    using GMainWindow::resizeHonoringScreenDimensions;

    bool loadFile(const QString &name) override
    {
        loadedFiles.append(name);
        return canLoad;
    }
    bool saveFile(const QString &) override { return true; }
    bool isModified() const override { return modified; }
    bool isBusy() const override { return busy; }
    void cancelWork() override { cancelled = true; }

    bool modified = false;
    bool canLoad = false;
    bool busy = false;
    bool cancelled = false;
    QStringList loadedFiles;

protected:
    void writeSettings(GSettings &settings) override { settings.setValue("own", "stored"); }
    void readSettings(GSettings &settings) override { setProperty("own", settings.value("own")); }
};

/** One of the windows there are; null when there is none. */
inline GMainWindow *theWindow()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *window = qobject_cast<GMainWindow *>(widget))
            return window;
    }
    return nullptr;
}
