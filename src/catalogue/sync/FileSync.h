#pragma once

#include "base/GlobalSettings.h"
#include "base/IProgressAbortListener.h"
#include "catalogue/records/IFile.h"
#include "catalogue/records/Project.h"
#include "catalogue/sync/FileSyncTracking.h"
#include "catalogue/sync/SyncCounts.h"
#include "catalogue/sync/UnreadableFile.h"
#include <QByteArray>
#include <QSet>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

class QFileInfo;
namespace Embroidery {
class EmbPattern;
}

/**
 * Brings the catalogue into line with the disk. One instance lives for one run,
 * on the main thread.
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
     * The whole run over the project's smart folders.
     * @param formats wildcards of the formats that are read, such as "*.pes"
     * A file that cannot be read leaves its record as it is; the others go on.
     */
    void syncFilesWithDisk(const QStringList &formats);

    int numChangedFiles() const { return m_counts.changed(); }
    SyncCounts counts() const { return m_counts; }
    /** In the order in which the run met them. */
    QList<UnreadableFile> unreadableFiles() const { return m_unreadable; }

    /**
     * Above this many megabytes previews that no record needs are deleted; 0
     * keeps none of them.
     */
    void setMaxCacheSizeMB(int megabytes) { m_maxCacheSizeMB = megabytes; }

    /** The raw 16-byte MD5 digest of @p bytes. */
    static QByteArray calculateContentHash(const QByteArray &bytes);

private:
    using Paths = QSet<QString>;
    using Pattern = QSharedPointer<Embroidery::EmbPattern>;

    Paths findSupportedFiles();
    void applyChanges(const Paths &onDisk);
    Paths projectFileNames() const;
    Paths reconnectFiles(const Paths &fresh, const Paths &gone);
    QSet<QByteArray> existingPreviews();
    void removeFileData(const Paths &gone);
    void addFileData(const Paths &fresh);
    void updateFileData(const Paths &kept);
    bool isStopped();
    int updateFileData(const QSharedPointer<IFile> &file);
    bool isUnchanged(const IFile &file, const QFileInfo &onDisk) const;
    void noteUnreadable(const UnreadableFile &file);
    Pattern readPattern(const QString &path, const QByteArray &bytes);
    void copyMetaData(const Pattern &pattern, const QSharedPointer<IFile> &file);
    void updatePreviewImage(const Pattern &pattern, const QByteArray &hash);
    QSet<QByteArray> allContentKeys() const;
    void removePreviewFiles(const QSet<QByteArray> &orphans);
    qint64 previewDirectorySizeMB();

    QSharedPointer<Project> m_project;
    IProgressAbortListener *m_listener;
    SyncCounts m_counts;
    QList<UnreadableFile> m_unreadable;
    QSet<QByteArray> m_existingPreviewKeys;
    GlobalSettings m_settings;
    FileSyncTracking m_tracking;
    int m_maxCacheSizeMB = 250;
};
