#pragma once

#include "app/addons/GApplicationAddons.h"
#include "app/frame/GRecentFileProvider.h"
#include "base/ErrorCollector.h"
#include "base/qt/Events.h"

#include <memory>
#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

class Error;
class GAction;
class GFileType;
class GMainWindow;

/**
 * The frame's application object: the commands that belong to no window, the
 * registry of windows, what opening a file means, the barrier that exceptions
 * end at, and quitting. Main thread only.
 *
 * Where there is neither a dock nor an application menu to come back through, the
 * program ends with its last window.
 */
class GApplication : public QApplication,
                     public GApplicationAddons,
                     public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    GApplication(int &argc, char **argv, const QString &applicationName, const QString &version,
                 const QString &shortName, bool singleWindowMode);
    ~GApplication() override;

    /** The application as this class; null when there is none or another one. */
    static GApplication *instance();

    /** Role of the about dialog in the object registry: made of one QWidget pointer. */
    static const QString di_AboutDialog;

    /** What belongs into the application menu, where the platform has one. */
    virtual QList<GAction *> applicationMenuActions() const;
    virtual QList<GAction *> applicationLevelFileActions() const;
    virtual QList<GAction *> applicationLevelHelpActions() const;
    virtual QList<GAction *> applicationLevelToolbarActions() const;
    GAction *aboutAction() const;
    GAction *preferencesAction() const;
    GAction *tutorialsAction() const;
    QMenu *windowMenu() const;

    bool event(QEvent *event) override;

    /** Tells what an event handler has thrown and goes on; nothing thrown ends the program. */
    bool notify(QObject *receiver, QEvent *event) override;

    /**
     * Runs @p action behind the barrier of notify(): for the roads by which Qt calls us without
     * going through it, such as the signals of the application itself, and for destructors.
     * False when something was thrown.
     */
    template <class Action>
    bool guarded(Action &&action) noexcept
    {
        try {
            action();
            return true;
        } catch (...) {
            reportCaught();
        }
        return false;
    }

    bool nativeEventFilter(const QByteArray &eventType, void *message,
                           QtEvents::NativeResult *result) override;

    void registerMainWindow(GMainWindow *window);
    void unregisterMainWindow(GMainWindow *window);
    int mainWindowCount() const;
    QList<GMainWindow *> mainWindows() const { return m_mainWindows; }

    /** The active window, when it is one of ours; null otherwise. */
    static GMainWindow *currentWindow();

    GRecentFileProvider *recentFileProvider();
    ErrorCollector &errorCollector();

    /** This is the first start with these settings. */
    bool isFirstStart() const;

    /** From construction until finalizeStartup(): files to open wait meanwhile. */
    bool isStartingUp() const;

    /** The last window is on its way out, and the process with it. */
    bool isQuitting() const { return m_quitting; }

    /** A new hidden window for a file of this name; null when no type is registered. */
    GMainWindow *newFile(const QString &fileName);

public slots:
    void openFile(const QString &fileName);

    /** Closes the windows in order; false when the user kept one, and nothing is quit then. */
    bool closeAllWindowsAndQuit();

    /**
     * The same at somebody else's wish, at any moment: cancels what is running and what is
     * being asked, and closes the windows as soon as that has come to its end.
     */
    void quitWhenIdle();

    virtual void newDocument();
    virtual void openDocument();
    virtual void showFeedbackDialog() = 0;
    virtual void showPreferences() = 0;
    virtual void updateCheck() = 0;
    /** What cannot work in this build is not offered. */
    void updateHelpActions();
    virtual void showAbout();
    virtual void showDocumentation();
    virtual void showTutorials();
    virtual void showAcknowledgements();
    void recentFileListRefreshed();
    void updateWindowMenu();

    /** The user asked for the program again: raises its windows or makes one. */
    void onClickOnDock();

signals:
    void activate();
    void fileOpenRequest();
    /** May be emitted from any thread; the text is shown by the main thread. */
    void criticalError(QString error);

protected:
    /** Ends the start-up and opens the files that came in meanwhile. */
    void finalizeStartup();

    /** Shows what was caught as an Error. */
    virtual void reportError(const Error &error);

    /** A file or folder that no window has a type for; nothing happens at this level. */
    virtual void openUntyped(const QString &path);

private:
    void reportCaught() noexcept;
    void reportException(const std::exception &exception);
    static void logUnknownException();
    void prepareToQuit();
    void saveForSessionEnd(QSessionManager &manager);
    bool isBusy() const;
    void cancelWork();
    void createApplicationLevelActions();
    void createApplicationLevelMenuBar();
    void displayCriticalError(const QString &text);
    void openHelp(const QUrl &page);
    GMainWindow *windowShowing(const QString &fileName) const;
    GMainWindow *lastUnusedWindowFor(const QString &fileName) const;
    void loadInto(GMainWindow *window, const QString &fileName, bool reused);

    QStringList m_filesToOpen;
    bool m_singleWindowMode;
    bool m_startingUp = true;
    GRecentFileProvider m_recentFileProvider;
    GAction *m_newAction = nullptr;
    GAction *m_openAction = nullptr;
    GAction *m_preferencesAction = nullptr;
    GAction *m_aboutAction = nullptr;
    GAction *m_documentationAction = nullptr;
    GAction *m_tutorialsAction = nullptr;
    GAction *m_acknowledgementsAction = nullptr;
    GAction *m_feedbackAction = nullptr;
    GAction *m_updateCheckAction = nullptr;
    QList<QAction *> m_windowActions;
    std::unique_ptr<QMenu> m_windowMenu;
    std::unique_ptr<QMenuBar> m_menuBar;
    bool m_quitting = false;
    QTimer m_quitTimer;
    QList<GMainWindow *> m_mainWindows;
    bool m_firstStart = false;
    ErrorCollector m_errorCollector;
};
