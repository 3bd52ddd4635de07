#pragma once

#include "app/application/GApplication.h"

#include <functional>
#include <QSharedPointer>

class WindowsUpdater;

/** The product's application: its brand, what is created at launch, its trimming of the menus. */
class HooplineApplication : public GApplication
{
    Q_OBJECT

public:
    using WindowFactory = std::function<GMainWindow *()>;
    using PreferencesPresenter = std::function<void(QWidget *)>;

    HooplineApplication(int &argc, char **argv);
    ~HooplineApplication() override;

    /** The application as this class; null when there is none or another one. */
    static HooplineApplication *instance();

    /**
     * Tells how the product's window is made and how its preferences are shown
     * over a parent, which may be null. The application knows neither by itself,
     * since both stand above it. To be set before the event loop turns. A factory that
     * returns null has told the user why, and ends the program.
     */
    static void setWindowFactory(const WindowFactory &factory);
    static void setPreferencesPresenter(const PreferencesPresenter &presenter);

    QList<GAction *> applicationLevelFileActions() const override;
    QList<GAction *> applicationLevelHelpActions() const override;
    QList<GAction *> applicationLevelToolbarActions() const override;
    QPixmap updaterPixmap() const override;

    /** Says that a setting which widgets keep a copy of has changed. */
    void emitSyncGlobalSettings();

public slots:
    /** Makes the window, unless there is one. Quits when the user gives it up. */
    void newDocument() override;
    void showPreferences() override;
    void showFeedbackDialog() override;
    void updateCheck() override;
    void launch();
    void launchAsyncNetworkTasks();

signals:
    /** Widgets that keep a copy of a setting read it again. */
    void syncGlobalSettings();

protected:
    void reportError(const Error &error) override;

    /** Keeps a start that is going to end from making its window. */
    void cancelLaunch() { m_launchCancelled = true; }

    /** Has the window show them as soon as it is there, all that come together at once. */
    void openUntyped(const QString &path) override;

private:
    void showPaths();

    bool m_launchCancelled = false;
    QStringList m_pathsToShow;
    QSharedPointer<WindowsUpdater> m_updater;
};
