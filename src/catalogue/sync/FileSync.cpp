#include "catalogue/sync/FileSync.h"

#include "base/EmptyProgressListener.h"
#include "base/GlobalSettings.h"
#include "base/threads/ResponsiveWait.h"
#include "catalogue/records/File.h"
#include "catalogue/scan/DesignFinder.h"
#include "catalogue/scan/DesignPreparation.h"
#include "catalogue/scan/PreviewFolder.h"
#include "catalogue/sync/Reconnection.h"
#include "catalogue/sync/RecordUpdate.h"
#include <algorithm>
#include <iterator>
#include <QCryptographicHash>
#include <QThread>
#include <utility>

namespace {

constexpr int ScanSteps = 10000;
/** Of the files under way; one alone may need more. */
constexpr qint64 WorkersMemory = qint64(256) * 1024 * 1024;
/** What the workers get to end by themselves when the user has asked for the end. */
constexpr std::chrono::milliseconds LastMoment(40);

QString fileName(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

} // namespace

FileSync::FileSync(QSharedPointer<Project> project, IProgressAbortListener *listener,
                   UsageEventSink usage)
    : m_project(std::move(project)), m_listener(listener ? listener : &emptyProgressListener),
      m_previews(std::make_shared<PreviewFolder>(GlobalSettings().previewImagePath(QByteArray()))),
      m_tracking(std::move(usage)), m_limits{QThread::idealThreadCount(), WorkersMemory}
{
}

QByteArray FileSync::calculateContentHash(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

void FileSync::syncFilesWithDisk(const QStringList &formats)
{
    m_tracking.beginSync(formats);
    m_counts = SyncCounts();
    m_report = ScanReport();
    m_previews->removeLeftovers();
    const auto onDisk = findSupportedFiles();
    // What an aborted scan did not reach must never be taken for deleted.
    if (!m_listener->abortState())
        applyChanges(onDisk);
    m_report.stopped = m_listener->abortState() != 0;
    m_tracking.endSync(m_project->smartFolders().size(), m_project->files().size());
}

QHash<QString, FoundFile> FileSync::findSupportedFiles()
{
    m_listener->setSteps(ScanSteps);
    const FoundFiles found = DesignFinder::find(m_project->smartFolders(), *m_listener);
    keepRelevant(found.skipped);

    QHash<QString, FoundFile> supported;
    supported.reserve(found.files.size());
    for (const FoundFile &file : found.files) {
        if (m_tracking.logFile(file.path))
            supported.insert(file.path, file);
    }
    return supported;
}

/** A name that is no text matters when it is that of a folder or of a design. */
void FileSync::keepRelevant(const QVector<SkippedEntry> &skipped)
{
    std::copy_if(skipped.begin(), skipped.end(), std::back_inserter(m_report.skipped),
                 [this](const SkippedEntry &entry) {
                     return entry.kind != SkippedEntry::UndecodableName ||
                            !fileName(entry.path).contains(QLatin1Char('.')) ||
                            m_tracking.isSupported(entry.path);
                 });
}

void FileSync::applyChanges(const QHash<QString, FoundFile> &onDisk)
{
    QSet<QString> gone;
    QHash<QString, FoundFile> unknown = onDisk;
    const auto files = m_project->files();
    for (const Record &file : files) {
        const QString path = file->absoluteFilePath();
        if (onDisk.contains(path))
            unknown.remove(path);
        else
            gone.insert(path);
    }
    QVector<FoundFile> fresh(unknown.cbegin(), unknown.cend());
    // Hashes have no order of their own; runs over the same files shall go alike.
    std::sort(fresh.begin(), fresh.end(),
              [](const FoundFile &a, const FoundFile &b) { return a.path < b.path; });

    if (!reconnectFiles(fresh, gone))
        return;
    m_listener->setSteps(onDisk.size());
    m_existingPreviewKeys = m_previews->keys();
    removeFileData(gone);
    updateRecords(fresh, onDisk);
    removePreviewFiles(m_existingPreviewKeys - allContentKeys());
}

/** False when the user has asked for the end: what was not compared yet may only have moved. */
bool FileSync::reconnectFiles(QVector<FoundFile> &fresh, QSet<QString> &gone)
{
    if (fresh.isEmpty() || gone.isEmpty())
        return true;
    const auto files = m_project->files();
    QList<Record> vanished;
    std::copy_if(files.begin(), files.end(), std::back_inserter(vanished),
                 [&gone](const Record &file) { return gone.contains(file->absoluteFilePath()); });
    const auto matches = Reconnection(vanished, fresh).find(*m_listener, m_limits);
    if (m_listener->abortState())
        return false;

    QSet<QString> reconnected;
    for (const Reconnection::Match &match : matches) {
        m_report.moved.append({match.record->absoluteFilePath(), match.path});
        match.record->setAbsoluteFilePath(match.path);
        reconnected.insert(match.path);
    }
    gone -= reconnected;
    fresh.erase(std::remove_if(fresh.begin(), fresh.end(),
                               [&reconnected](const FoundFile &file) {
                                   return reconnected.contains(file.path);
                               }),
                fresh.end());
    m_counts.reconnected = reconnected.size();
    if (m_counts.reconnected != 0)
        m_project->setFiles(files);
    return true;
}

void FileSync::removeFileData(const QSet<QString> &gone)
{
    if (gone.isEmpty())
        return;
    const auto files = m_project->files();
    QList<Record> remaining;
    for (const Record &file : files) {
        const QString path = file->absoluteFilePath();
        if (gone.contains(path))
            m_report.removed.append(path);
        else
            remaining.append(file);
    }
    m_project->setFiles(remaining);
    m_counts.removed = files.size() - remaining.size();
}

void FileSync::updateRecords(const QVector<FoundFile> &fresh,
                             const QHash<QString, FoundFile> &onDisk)
{
    QVector<Visit> kept;
    std::vector<DesignJob> jobs;
    const auto addJob = [&jobs](const FoundFile &file, const QByteArray &knownHash) {
        jobs.push_back({file.path, file.size, knownHash, int(jobs.size())});
    };
    for (const FoundFile &file : fresh)
        addJob(file, QByteArray());
    const auto files = m_project->files();
    for (const Record &file : files) {
        const auto found = onDisk.constFind(file->absoluteFilePath());
        if (found == onDisk.constEnd())
            continue;
        const bool doubtful = !RecordUpdate::isUnchanged(*file, *found, m_existingPreviewKeys);
        kept.append({file, found->path, doubtful});
        if (doubtful)
            addJob(*found, file->contentHash());
    }

    const auto preparation =
        std::make_shared<const DesignPreparation>(m_previews, m_existingPreviewKeys);
    Workers workers(
        std::move(jobs),
        [preparation](const DesignJob &job, const IAbortCheck &abort) {
            return preparation->prepare(job, abort);
        },
        m_limits);
    addFileData(fresh, workers);
    updateFileData(kept, workers);
    if (m_listener->abortState())
        workers.abort(LastMoment);
}

void FileSync::addFileData(const QVector<FoundFile> &fresh, Workers &workers)
{
    if (fresh.isEmpty())
        return;
    QList<Record> files = m_project->files();
    for (const FoundFile &found : fresh) {
        const auto file = QSharedPointer<File>::create(m_project.data());
        file->setAbsoluteFilePath(found.path);
        const auto design = lookInto({file, found.path, true}, workers);
        if (design)
            commit(file, *design);
        else
            m_report.unreached.append(found.path);
        if (design && design->vanished)
            continue;
        files.append(file);
        m_report.added.append(found.path);
    }
    m_project->setFiles(files);
    m_counts.added = m_report.added.size();
    m_counts.unreached = m_report.unreached.size();
}

void FileSync::updateFileData(const QVector<Visit> &kept, Workers &workers)
{
    for (const Visit &visit : kept) {
        const QByteArray before = visit.record->contentHash();
        const auto design = lookInto(visit, workers);
        if (!design)
            continue;
        m_counts.updated += commit(visit.record, *design);
        if (design->state == PreparedDesign::Read && design->hash != before)
            m_report.changed.append(visit.path);
    }
}

/** Nothing when there was no need, or when the user has asked for the end. */
std::optional<PreparedDesign> FileSync::lookInto(const Visit &visit, Workers &workers)
{
    if (m_listener->abortState()) {
        m_listener->proceed(QStringLiteral("Aborting..."));
        return std::nullopt;
    }
    m_listener->proceed(QStringLiteral("Loading ") + fileName(visit.path));
    if (!visit.doubtful)
        return std::nullopt;
    return waitResponsively(*m_listener,
                            [&workers](auto patience) { return workers.take(patience); });
}

int FileSync::commit(const Record &file, const PreparedDesign &design)
{
    return RecordUpdate(m_project.data(), m_tracking, m_counts, m_report.unreadable)
        .commit(file, design);
}

QSet<QByteArray> FileSync::allContentKeys() const
{
    QSet<QByteArray> keys;
    const auto files = m_project->files();
    keys.reserve(files.size());
    for (const Record &file : files)
        keys.insert(file->contentHash());
    return keys;
}

void FileSync::removePreviewFiles(const QSet<QByteArray> &orphans)
{
    if (orphans.isEmpty() || (m_maxCacheSizeMB != 0 && m_previews->sizeInMB() <= m_maxCacheSizeMB))
        return;
    m_previews->remove(orphans);
}
