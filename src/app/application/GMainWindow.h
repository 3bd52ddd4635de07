#pragma once

#include <QMainWindow>

class GAction;
class GSettings;
class QSplitter;

/**
 * A window of the program: keeps its layout in the settings, asks before
 * unsaved changes are lost and is known to the application as long as it lives.
 * Deletes itself when it is closed.
 */
class GMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** @p statusWidget is for windows that show progress in a bar of their own; none here does. */
    explicit GMainWindow(QWidget *parent = nullptr, bool statusWidget = false);
    ~GMainWindow() override;

    /** The document shown; empty for none. */
    QString fileName() const;

    /** Shows a document or has unsaved changes. */
    bool isUsed() const;

    /** Whether documents of this name are shown by windows of this class. */
    bool canOpenFile(const QString &name) const;

    virtual void setCurrentFileName(const QString &name);

    /** Short name of the format the user works with; empty when there is none. */
    virtual QString currentDataFormat() const;

    /**
     * Stores geometry, docks and named splitters under @p group, or under the
     * letters and digits of the file name when it is empty. A hidden window
     * stores nothing.
     */
    virtual void saveWindowState(const QString &group);
    virtual void restoreWindowState(const QString &group);

    /** Whether the document could be loaded. May throw Error. */
    virtual bool loadFile(const QString &name) = 0;
    /** Whether the document could be saved. May throw Error. */
    virtual bool saveFile(const QString &name) = 0;
    virtual bool isModified() const = 0;

    /**
     * Whether the window may close; when what is in it would be lost, the user is asked.
     * May be called when the window then stays.
     */
    virtual bool confirmClose();

    /**
     * Saves what must outlive the end of the session, which may still be called off. Asks
     * nobody; false when it could not be saved.
     */
    virtual bool saveForSessionEnd();

    /** Whether long work is running that lets events in. The window can't be closed then. */
    virtual bool isBusy() const;
    /** Asks such work to come to its end. */
    virtual void cancelWork();

    /** Files and folders of no document type that the user wants to see; ignored at this level. */
    virtual void showPaths(const QStringList &paths);

public slots:
    void showRaiseActivateWindow();
    virtual void save();
    virtual void saveAs();

    /** False when the user chose to keep the window. */
    virtual bool closeWindow();

    virtual void focusChanged(QWidget *from, QWidget *to);
    void mainWindowPostInit();
    virtual void editMenuAboutToShow();

protected:
    /** Adds what belongs to the window; called inside the group of the window. */
    virtual void writeSettings(GSettings &settings) = 0;
    virtual void readSettings(GSettings &settings) = 0;

    /** Last call before an accepted close. */
    virtual void shutdownWindow();

    /** Where the application's own commands go on platforms without an application menu. */
    virtual void installApplicationMenuItems(QMenu *fileMenu, QMenu *helpMenu);

    void closeEvent(QCloseEvent *event) override;

    /** Keeps the window 19 pixels clear of the edges of the screen and centres it there. */
    void resizeHonoringScreenDimensions(int width, int height);

    /** "&Edit" on the menu bar, made on first use. */
    QMenu *editMenu();

    void createRecentFileMenu(QMenu *menu);

    GAction *m_saveAction = nullptr;
    GAction *m_saveAsAction = nullptr;
    GAction *m_closeAction = nullptr;

private:
    void createBasicActions();
    QString settingsGroup(const QString &group) const;
    QList<QSplitter *> namedSplitters() const;

    QMenu *m_editMenu = nullptr;
    QString m_currentFileName;
    bool m_closeConfirmed = false;
};
