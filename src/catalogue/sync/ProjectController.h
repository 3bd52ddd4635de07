#pragma once

#include "base/IProgressAbortListener.h"
#include "base/UsageEventSink.h"
#include "catalogue/backups/BackupFolder.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/records/Project.h"
#include "catalogue/sync/CatalogueFile.h"
#include "catalogue/sync/CatalogueSave.h"
#include "catalogue/sync/ScanReport.h"
#include "catalogue/sync/SyncCounts.h"
#include "catalogue/userdata/UserDataMemory.h"
#include <functional>
#include <memory>
#include <QCoreApplication>
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

class DataModelReader;

/**
 * Owns the one catalogue of the program and decides when it is loaded, saved,
 * reloaded and brought into line with the disk. The catalogue is a fixed file
 * below the application data path. Whatever has to give way to something else is
 * kept in a file of its own. Main thread only.
 */
class ProjectController
{
    Q_DECLARE_TR_FUNCTIONS(ProjectController)

public:
    /** A catalogue that had to give way. */
    struct Kept
    {
        CatalogueFile::Fate fate;
        QString file;
        int designs; ///< those taken over from a damaged one; -1 for the others
    };

    /** Decides where the catalogue lies; touches no file. */
    ProjectController();
    virtual ~ProjectController();

    ProjectController(const ProjectController &) = delete;
    ProjectController &operator=(const ProjectController &) = delete;

    /** @param listener not owned, must live as long as the controller; null for none */
    void setProgressAbortListener(IProgressAbortListener *listener);

    /** @param sink takes the figures of each scan; none when it is empty, as at the start */
    void setUsageEventSink(UsageEventSink sink);

    /** Null before the catalogue was loaded; owned by the controller. */
    FilterSelectionModel *selectionModel() const { return m_selectionModel.get(); }

    /** Null before the catalogue was loaded. */
    QSharedPointer<Project> project() const { return m_project; }

    QString projectFilePath() const { return m_file.path(); }

    /** What the last scan did. */
    SyncCounts lastScan() const { return m_lastScan; }
    ScanReport lastReport() const { return m_lastReport; }
    QList<UnreadableFile> unreadableFiles() const { return m_lastReport.unreadable; }

    /**
     * Loads the catalogue into a new project. A missing catalogue is created. Of a damaged
     * one the whole records are taken over; it is kept, and replaced by them.
     * @throws CatalogueUnusableError when it is there and can't be read for now, or was
     *         written by a newer version: it is left as it is
     * @throws CatalogueUnsavedError when the catalogue cannot be written
     */
    void loadOrCreateProject();

    /**
     * Loads the catalogue into a new project and changes nothing on the disk.
     * @throws Error when it cannot be read or is damaged
     */
    void loadProject();

    /**
     * Writes the catalogue when the undo stack is not clean, and waits for a save that goes
     * on beside. Somebody else's file in its place is kept.
     * @throws CatalogueUnsavedError when it cannot be written; the project stays modified
     */
    virtual void saveProjectIfModified();

    /**
     * The same, but the writing goes on beside, for the catalogue as it is now, until
     * finishSave().
     * @param whenDone called on another thread when that need not wait; not at all when
     *        there is nothing to save
     * @throws CatalogueUnsavedError when it is known already that it cannot be written
     */
    void beginSave(std::function<void()> whenDone);

    /** Whether a save was begun and not ended. */
    bool isSaving() const { return m_save != nullptr; }

    /**
     * Ends a save that was begun, if there is one, and waits for it.
     * @throws CatalogueUnsavedError when it has failed; the project is modified again
     */
    void finishSave();

    /** Whether there is something to save, or it is not known yet to be on the disk. */
    bool isModified() const;

    /**
     * Writes the catalogue as it is now to a file of the user's choice, and the saved searches,
     * if there are any, to one beside it. @throws Error
     */
    void saveCopy(const QString &path) const;

    /** Whether the catalogue was changed from outside since this controller loaded or saved it. */
    bool isNewerOnDisk() const { return !isSaving() && m_file.isNewerThanLastSeen(); }

    /**
     * Takes over a catalogue that is newer on the disk; edits that were not saved are kept.
     * One that is damaged may be half written; the project counts as modified from then on,
     * so that the next save heals it, or the next call if nobody has touched it until then.
     * @throws Error when it cannot be read; the project is as it was
     */
    void reloadProjectIfNewerOnDisk();

    /** What people wrote, beside the catalogue; null for one that was only looked into. */
    UserDataMemory *memory() const { return m_memory.get(); }

    /** Whether edits were brought back that had not been saved when the program ended. */
    bool hasRecoveredEdits() const { return m_recoveredEdits; }

    /** What had to give way since the last call. */
    QList<Kept> takeKept();

    /** The backups of the catalogue, beside it. */
    const BackupFolder &backups() const { return m_backups; }

    /** Why no backup could be made when it was due; empty when all is well. */
    QString backupFailure() const { return m_backupFailure; }

    /**
     * Puts what is in a backup, or in a copy of a catalogue, into the place of the catalogue
     * and saves it. What was there is kept among the backups, in the file returned. Saved
     * searches that went with the backup and are not there any more come back.
     * @throws Error when the file is no whole catalogue of a version that is known, or the
     *         present state could not be kept: then nothing has changed
     * @throws CatalogueUnsavedError when it cannot be saved; it is shown and counts as modified
     */
    QString restore(const QString &backup);

    /** Adds smart folders, given by absolute path, and scans. @throws Error as the scan */
    void addDirectories(const QStringList &directories);

    /**
     * Removes the smart folder that is the filter's directory, and scans. Does
     * nothing when that is no smart folder. @throws Error as the scan
     */
    void removeSelectedDirectory();

    /**
     * Brings the catalogue into line with the disk and saves what changed. Files that
     * cannot be read are left out and listed.
     * @throws Error when the catalogue cannot be written
     */
    void scanSmartFolders();

    /** The outermost folders of @p list, in the order of all lists shown to the user. */
    static QStringList sortAndRemoveSubdirectories(QStringList list);

protected:
    /**
     * Begins to remember what is edited, and applies what was edited on the very catalogue
     * that was loaded and not saved. Done already by loadOrCreateProject().
     */
    void rememberUserData();

private:
    void openMemory();
    void synchronise();
    void createProject();
    void recoverProject();
    void saveProject();
    void keepWhatOthersWrote();
    void keepAside(const QByteArray &bytes, CatalogueFile::Fate fate);
    bool isBackupDue() const;
    QByteArray searches() const;
    void backUp();
    void tryBackup(const std::function<void()> &backup);
    void writeProject();
    void replaceContents(DataModelReader &reader, const QByteArray &present);
    bool isWhole(const QByteArray &bytes) const;
    void reload(const QByteArray &bytes);
    void keep(const QByteArray &bytes, CatalogueFile::Fate fate, int designs = -1);

    QSharedPointer<Project> m_project;
    IProgressAbortListener *m_listener;
    UsageEventSink m_usage;
    CatalogueFile m_file;
    BackupFolder m_backups;
    QString m_backupFailure;
    FileStamp m_damaged; ///< that of a newer catalogue that was no whole one
    std::unique_ptr<FilterSelectionModel> m_selectionModel;
    std::unique_ptr<UserDataMemory> m_memory;
    bool m_recoveredEdits = false;
    SyncCounts m_lastScan;
    QList<Kept> m_kept;
    ScanReport m_lastReport;
    // Goes first: it uses the others, and what waits for it is told in its end.
    std::unique_ptr<CatalogueSave> m_save;
};
