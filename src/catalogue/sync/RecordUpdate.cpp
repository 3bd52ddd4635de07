#include "catalogue/sync/RecordUpdate.h"

#include "catalogue/records/Thread.h"
#include <QColor>

RecordUpdate::RecordUpdate(Project *project, FileSyncTracking &tracking, SyncCounts &counts,
                           QList<UnreadableFile> &unreadable)
    : m_project(project), m_tracking(tracking), m_counts(counts), m_unreadable(unreadable)
{
}

bool RecordUpdate::isUntouched(const IFile &record, const FoundFile &onDisk)
{
    return onDisk.modified == record.modificationDate() && onDisk.size == record.fileSize();
}

int RecordUpdate::commit(const QSharedPointer<IFile> &record, const PreparedDesign &design)
{
    // A file that can't be read must look changed the next time.
    if (design.state == PreparedDesign::Unreadable) {
        noteUnreadable(record->absoluteFilePath(), design);
        return 0;
    }
    const bool touched = design.modified != record->modificationDate() ||
                         int(design.size) != record->fileSize() ||
                         design.hash != record->contentHash();
    record->setModificationDate(static_cast<unsigned int>(design.modified));
    record->setFileSize(static_cast<int>(design.size));
    if (design.state == PreparedDesign::Touched)
        return 1;

    record->setContentHash(design.hash);
    if (design.state == PreparedDesign::Read) {
        copyMetaData(design, record);
        return 1;
    }
    noteUnreadable(record->absoluteFilePath(), design);
    if (design.state == PreparedDesign::TooLarge)
        return touched ? 1 : 0;
    m_tracking.fileFormatError();
    return 1;
}

void RecordUpdate::noteUnreadable(const QString &path, const PreparedDesign &design)
{
    m_unreadable.append({path, design.reason, design.state != PreparedDesign::Unreadable});
    ++m_counts.unreadable;
}

void RecordUpdate::copyMetaData(const PreparedDesign &design, const QSharedPointer<IFile> &record)
{
    record->setName(design.name);
    record->setDesignSize(design.sizeInMillimetres);
    record->setStitchCount(design.stitchCount);

    QList<QSharedPointer<IThread>> threads;
    for (const PreparedDesign::Thread &facts : design.threads) {
        const auto thread = QSharedPointer<Thread>::create(m_project);
        thread->setColor(QColor(facts.color));
        thread->setColorName(facts.name);
        thread->setChart(facts.chart);
        threads.append(thread);
    }
    record->setThreads(threads);
    if (design.painted) {
        m_tracking.beginRenderFile();
        m_tracking.endRenderFile(design.stitchCount, design.paintingTime);
    }
}
