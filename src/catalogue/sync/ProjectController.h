#pragma once

#include "base/IProgressAbortListener.h"
#include "base/UsageEventSink.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/records/Project.h"
#include "catalogue/sync/SyncCounts.h"
#include <memory>
#include <QCoreApplication>
#include <QDateTime>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

/**
 * Owns the one catalogue of the program and decides when it is loaded, saved,
 * reloaded and brought into line with the disk. The catalogue is a fixed file
 * below the application data path. Main thread only.
 */
class ProjectController
{
    Q_DECLARE_TR_FUNCTIONS(ProjectController)

public:
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

    QString projectFilePath() const { return m_projectFilePath; }

    /** What the last scan did. */
    SyncCounts lastScan() const { return m_lastScan; }

    /**
     * Loads the catalogue into a new project. A missing catalogue is created, one
     * that cannot be read is overwritten by what could be read of it.
     * @throws Error when the catalogue cannot be written
     */
    void loadOrCreateProject();

    /**
     * Loads the catalogue into a new project.
     * @throws Error when it cannot be read; it is left as it is
     */
    void loadProject();

    /**
     * Writes the catalogue when the undo stack is not clean.
     * @throws Error when it cannot be written; the project stays modified
     */
    virtual void saveProjectIfModified();

    /** Whether the catalogue was changed from outside since this controller loaded or saved it. */
    bool isNewerOnDisk() const { return m_projectFileDate < dateOnDisk(); }

    /** @throws Error when the newer catalogue cannot be read */
    void reloadProjectIfNewerOnDisk();

    /** Adds smart folders, given by absolute path, and scans. @throws Error as the scan */
    void addDirectories(const QStringList &directories);

    /**
     * Removes the smart folder that is the filter's directory, and scans. Does
     * nothing when that is no smart folder. @throws Error as the scan
     */
    void removeSelectedDirectory();

    /**
     * Brings the catalogue into line with the disk and saves what changed.
     * @throws Error when a design file cannot be read, which leaves announcements
     *         held back and nothing saved, or when the catalogue cannot be written
     */
    void scanSmartFolders();

    /** The outermost folders of @p list, in the order of all lists shown to the user. */
    static QStringList sortAndRemoveSubdirectories(QStringList list);

private:
    void saveProject();
    QDateTime dateOnDisk() const;

    QSharedPointer<Project> m_project;
    IProgressAbortListener *m_listener;
    UsageEventSink m_usage;
    QDateTime m_projectFileDate;
    QString m_projectFilePath;
    std::unique_ptr<FilterSelectionModel> m_selectionModel;
    SyncCounts m_lastScan;
};
