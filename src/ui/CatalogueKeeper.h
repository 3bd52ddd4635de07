#pragma once

#include "base/threads/Mailbox.h"
#include "ui/Notice.h"

#include <chrono>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

class CatalogueUnsavedError;
class NoticeBar;
class ProjectController;
class RememberedData;

/**
 * Gets the catalogue to the disk and back for the window, and writes it beside the window
 * where nobody has to wait for that. What fails is told once in the
 * bar, stays there until it is put right and is tried again every few seconds; what had to
 * give way to something else is told there as well. Nothing of this is thrown.
 */
class CatalogueKeeper : public QObject
{
    Q_OBJECT

public:
    /** None is owned, and all must outlive the keeper. @param window what dialogs stand over */
    CatalogueKeeper(ProjectController *controller, NoticeBar *notices, QWidget *window);

    /** How long to wait before what failed is tried again; some seconds at the start. */
    void setRetryInterval(std::chrono::milliseconds interval) { m_interval = interval; }

    /** While work on the catalogue is under way that saves at its end, nothing is tried. */
    void setPaused(bool paused) { m_paused = paused; }

    /** Begins to save what is modified. */
    void save();

    /** Saves it before this returns, also while work is under way; false when it could not. */
    bool saveAnyway();

    /** Takes over a catalogue that is newer on the disk, after a save that goes on beside. */
    void reload();

    /** Tells of a save that somebody else has tried. */
    void tellUnsaved(const QString &reason);

    /** Tells what had to give way since the last time, and why there is no backup of today. */
    void tellKept();

    /** Tells that a backup has taken the place of the catalogue. @param title its name */
    void tellRestored(const QString &title);

    /**
     * Tells what had to be done when the catalogue was loaded.
     * @param folderWasMissing whether its folder had to be made anew
     */
    void tellStart(bool folderWasMissing);

    /**
     * Saves what is modified, and asks the user what to do as long as that fails. False when
     * the window is to stay; otherwise nothing is left to be saved, or it was given up.
     */
    bool saveBeforeEnd();

signals:
    /** The user wants to see the backups. */
    void backupsWanted();

private:
    void endSave();
    QString trySave();
    void tellBackupFailure();
    Notice::Action backupsAction();
    void tellFolderWasMissing();
    void tellSaved(const QString &failure);
    void tellUnreadable(const QString &reason);
    void tellUnremembered(const QString &reason);
    QString tryToEnd();
    RememberedData *remembered() const;
    void withdrawWhatIsRight();
    void retryLater(std::chrono::milliseconds lastAttempt);
    void retry();
    bool saveCopy();

    ProjectController *m_controller;
    NoticeBar *m_notices;
    QWidget *m_window;
    std::chrono::milliseconds m_interval;
    QTimer m_retryTimer;
    bool m_paused = false;
    bool m_givenUp = false;
    QString m_backupFailure; ///< as told last
    // Asked for while a save went on beside.
    bool m_saveNext = false;
    bool m_reloadNext = false;
    QElapsedTimer m_begun;
    Mailbox m_mailbox{this};
};
