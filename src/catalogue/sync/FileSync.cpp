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
    m_existingPreviewKeys = m_previews->tidyUp();
    const auto onDisk = findSupportedFiles();
    // What an aborted scan did not reach must never be taken for deleted.
    if (!m_listener->abortState())
        applyChanges(onDisk);
    m_report.stopped = m_listener->abortState() != 0;
    m_tracking.endSync(m_project->smartFolders().size(), m_project->files().size());
}

FilesOnDisk FileSync::findSupportedFiles()
{
    m_listener->setSteps(ScanSteps);
    const FoundFiles found = DesignFinder::find(m_project->smartFolders(), *m_listener);
    keepRelevant(found.skipped);

    FilesOnDisk supported;
    supported.reserve(found.files.size());
    for (const FoundFile &file : found.files) {
        if (m_tracking.logFile(file.path))
            supported.add(file);
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

void FileSync::applyChanges(const FilesOnDisk &onDisk)
{
    Comparison found = compare(onDisk);
    if (!reconnectFiles(found.fresh, found.gone))
        return;
    if (m_counts.reconnected != 0)
        found.kept = compare(onDisk).kept;
    m_listener->setSteps(onDisk.count());
    removeFileData(found.gone);
    updateRecords(found.fresh, found.kept);
    removePreviewFiles(orphanedPreviews(found.kept));
}

/** One pass for all: in a large catalogue each look at a record waits for the memory. */
FileSync::Comparison FileSync::compare(const FilesOnDisk &onDisk) const
{
    Comparison result;
    std::vector<bool> known(std::size_t(onDisk.count()));
    const auto files = m_project->files();
    result.kept.reserve(files.size());
    for (const Record &file : files) {
        const QString path = file->absoluteFilePath();
        const int index = onDisk.indexOf(path);
        if (index < 0) {
            result.gone.insert(path);
            continue;
        }
        known[std::size_t(index)] = true;
        const FoundFile &found = onDisk.at(index);
        const QByteArray hash = file->contentHash();
        const bool unchanged = RecordUpdate::isUntouched(*file, found) && !hash.isEmpty() &&
                               m_existingPreviewKeys.contains(hash);
        result.kept.append({file, found, hash, !unchanged});
    }
    for (int i = 0; i < onDisk.count(); ++i) {
        if (!known[std::size_t(i)])
            result.fresh.append(onDisk.at(i));
    }
    std::sort(result.fresh.begin(), result.fresh.end(),
              [](const FoundFile &a, const FoundFile &b) { return a.path < b.path; });
    return result;
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

void FileSync::updateRecords(const QVector<FoundFile> &fresh, const QVector<Visit> &kept)
{
    std::vector<DesignJob> jobs;
    const auto addJob = [&jobs](const FoundFile &file, const QByteArray &knownHash) {
        jobs.push_back({file.path, file.size, knownHash, int(jobs.size())});
    };
    for (const FoundFile &file : fresh)
        addJob(file, QByteArray());
    for (const Visit &visit : kept) {
        if (visit.doubtful)
            addJob(visit.found, visit.hash);
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
        const auto design = lookInto({file, found, QByteArray(), true}, workers);
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
        const auto design = lookInto(visit, workers);
        if (!design)
            continue;
        m_counts.updated += commit(visit.record, *design);
        if (design->state == PreparedDesign::Read && design->hash != visit.hash)
            m_report.changed.append(visit.found.path);
    }
}

/** Nothing when there was no need, or when the user has asked for the end. */
std::optional<PreparedDesign> FileSync::lookInto(const Visit &visit, Workers &workers)
{
    if (m_listener->abortState()) {
        m_listener->proceed(QStringLiteral("Aborting..."));
        return std::nullopt;
    }
    m_listener->proceed(QStringLiteral("Loading ") + fileName(visit.found.path));
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

QSet<QByteArray> FileSync::orphanedPreviews(const QVector<Visit> &kept) const
{
    QSet<QByteArray> orphans = m_existingPreviewKeys;
    for (const Visit &visit : kept)
        orphans.remove(visit.doubtful ? visit.record->contentHash() : visit.hash);
    if (m_report.added.isEmpty())
        return orphans;
    const auto files = m_project->files();
    for (const Record &file : files)
        orphans.remove(file->contentHash());
    return orphans;
}

void FileSync::removePreviewFiles(const QSet<QByteArray> &orphans)
{
    if (orphans.isEmpty() || (m_maxCacheSizeMB != 0 && m_previews->sizeInMB() <= m_maxCacheSizeMB))
        return;
    m_previews->remove(orphans);
}
