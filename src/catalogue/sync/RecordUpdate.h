#pragma once

#include "base/files/FoundFiles.h"
#include "catalogue/records/IFile.h"
#include "catalogue/records/Project.h"
#include "catalogue/scan/PreparedDesign.h"
#include "catalogue/sync/FileSyncTracking.h"
#include "catalogue/sync/SyncCounts.h"
#include "catalogue/sync/UnreadableFile.h"
#include <QList>
#include <QSharedPointer>

/**
 * Enters into the catalogue's records what was found out about their files, without undo
 * and without a touch to what the user wrote. Main thread.
 */
class RecordUpdate
{
public:
    /** Not owned: all must outlive this. @param tracking, counts, unreadable are kept up */
    RecordUpdate(Project *project, FileSyncTracking &tracking, SyncCounts &counts,
                 QList<UnreadableFile> &unreadable);

    /** Whether size and date of the file are those that the record has. */
    static bool isUntouched(const IFile &record, const FoundFile &onDisk);

    /** 1 if something was learned of the file's content, 0 if not. */
    int commit(const QSharedPointer<IFile> &record, const PreparedDesign &design);

private:
    void noteUnreadable(const QString &path, const PreparedDesign &design);
    void copyMetaData(const PreparedDesign &design, const QSharedPointer<IFile> &record);

    Project *m_project;
    FileSyncTracking &m_tracking;
    SyncCounts &m_counts;
    QList<UnreadableFile> &m_unreadable;
};
