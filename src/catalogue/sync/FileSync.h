#pragma once

#include "base/files/FoundFiles.h"
#include "base/IProgressAbortListener.h"
#include "base/threads/OrderedWorkers.h"
#include "catalogue/records/IFile.h"
#include "catalogue/records/Project.h"
#include "catalogue/scan/PreparedDesign.h"
#include "catalogue/sync/FilesOnDisk.h"
#include "catalogue/sync/FileSyncTracking.h"
#include "catalogue/sync/ScanReport.h"
#include "catalogue/sync/SyncCounts.h"
#include <memory>
#include <optional>
#include <QByteArray>
#include <QSet>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVector>

class PreviewFolder;

/**
 * Brings the catalogue into line with the disk. One instance lives for one run, on the
 * main thread: it compares what a DesignFinder found with the records, has the new and
 * the doubtful files looked into by a DesignPreparation on several threads, and enters
 * the results in order. Only this thread touches the catalogue.
 *
 * A file is known by the MD5 of its bytes: a file that vanished and turns up
 * elsewhere with the same content keeps its record, and with it the user's tags,
 * notes and favourite flag. What is read from the disk is set without undo.
 */
class FileSync
{
public:
    /**
     * Makes the preview directory if it is missing.
     * @param listener not owned; null when nobody listens
     * @param usage takes the figures of the run; empty when nobody wants them
     */
    FileSync(QSharedPointer<Project> project, IProgressAbortListener *listener,
             UsageEventSink usage = {});

    /**
     * The whole run over the project's smart folders. A file that cannot be read leaves
     * its record as it is, and the others go on.
     * @param formats wildcards of the formats that are read, such as "*.pes"
     */
    void syncFilesWithDisk(const QStringList &formats);

    int numChangedFiles() const { return m_counts.changed(); }
    SyncCounts counts() const { return m_counts; }
    ScanReport report() const { return m_report; }
    /** In the order in which the run met them. */
    QList<UnreadableFile> unreadableFiles() const { return m_report.unreadable; }

    /**
     * Above this many megabytes previews that no record needs are deleted; 0
     * keeps none of them.
     */
    void setMaxCacheSizeMB(int megabytes) { m_maxCacheSizeMB = megabytes; }

    /** As many threads as there are cores look into files, if nothing else is asked for. */
    void setThreadCount(int count) { m_limits.threads = count; }

    /** The raw 16-byte MD5 digest of @p bytes. */
    static QByteArray calculateContentHash(const QByteArray &bytes);

private:
    using Record = QSharedPointer<IFile>;
    using Workers = OrderedWorkers<DesignJob, PreparedDesign>;

    /** A record whose file is there. */
    struct Visit
    {
        Record record;
        FoundFile found;
        QByteArray hash; ///< as the record had it before the run
        bool doubtful;   ///< one of the workers looks into the file
    };

    /** The records beside the disk. */
    struct Comparison
    {
        QVector<Visit> kept;      ///< in the records' order
        QVector<FoundFile> fresh; ///< those without a record, by path
        QSet<QString> gone;       ///< records without a file
    };

    FilesOnDisk findSupportedFiles();
    void keepRelevant(const QVector<SkippedEntry> &skipped);
    void applyChanges(const FilesOnDisk &onDisk);
    bool reconnectFiles(QVector<FoundFile> &fresh, QSet<QString> &gone);
    void removeFileData(const QSet<QString> &gone);
    Comparison compare(const FilesOnDisk &onDisk) const;
    void updateRecords(const QVector<FoundFile> &fresh, const QVector<Visit> &kept);
    void addFileData(const QVector<FoundFile> &fresh, Workers &workers);
    void updateFileData(const QVector<Visit> &kept, Workers &workers);
    std::optional<PreparedDesign> lookInto(const Visit &visit, Workers &workers);
    int commit(const Record &file, const PreparedDesign &design);
    QSet<QByteArray> orphanedPreviews(const QVector<Visit> &kept) const;
    void removePreviewFiles(const QSet<QByteArray> &orphans);

    QSharedPointer<Project> m_project;
    IProgressAbortListener *m_listener;
    SyncCounts m_counts;
    ScanReport m_report;
    std::shared_ptr<PreviewFolder> m_previews;
    QSet<QByteArray> m_existingPreviewKeys;
    FileSyncTracking m_tracking;
    WorkerLimits m_limits;
    int m_maxCacheSizeMB = 250;
};
