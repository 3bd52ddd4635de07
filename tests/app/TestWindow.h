#pragma once

#include "app/application/GMainWindow.h"
#include "app/base/GSettings.h"

/** A window with a document that is whatever the test says. */
class TestWindow : public GMainWindow
{
    Q_OBJECT

public:
    using GMainWindow::GMainWindow;
    using GMainWindow::resizeHonoringScreenDimensions;

    bool loadFile(const QString &name) override
    {
        loadedFiles.append(name);
        return canLoad;
    }
    bool saveFile(const QString &) override { return true; }
    bool isModified() const override { return modified; }

    bool modified = false;
    bool canLoad = false;
    QStringList loadedFiles;

protected:
    void writeSettings(GSettings &settings) override
    {
        settings.setValue(QStringLiteral("own"), QStringLiteral("stored"));
    }
    void readSettings(GSettings &settings) override
    {
        setProperty("own", settings.value(QStringLiteral("own")));
    }
};
