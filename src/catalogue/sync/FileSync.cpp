#include "catalogue/sync/FileSync.h"

#include "base/EmptyProgressListener.h"
#include "base/Error.h"
#include "base/files/DirectoryScanner.h"
#include "base/files/FileTools.h"
#include "catalogue/records/File.h"
#include "catalogue/records/Thread.h"
#include "embroidery/EmbPattern.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/EmbThread.h"
#include "embroidery/IOException.h"
#include "preview/render/PreviewRenderer.h"
#include <algorithm>
#include <QColor>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QPixmap>
#include <utility>

namespace {

constexpr int ScanSteps = 10000;
constexpr double PreviewSize = 400.0;
constexpr double UnitsPerMillimetre = 10.0;
constexpr qint64 BytesPerMB = 1048576;

/** Sets have no order of their own; runs over the same files shall go alike. */
QStringList inOrder(const QSet<QString> &paths)
{
    QStringList list = paths.values();
    std::sort(list.begin(), list.end());
    return list;
}

bool bearsUserData(const IFile &file)
{
    return file.isFavorite() || !file.notes().isEmpty() || !file.tags().isEmpty();
}

QFileInfoList previewFiles(const QString &directory)
{
    return QDir(directory).entryInfoList({QStringLiteral("*.png")}, QDir::Files, QDir::Unsorted);
}

} // namespace

FileSync::FileSync(QSharedPointer<Project> project, IProgressAbortListener *listener,
                   UsageEventSink usage)
    : m_project(std::move(project)), m_listener(listener ? listener : &emptyProgressListener),
      m_tracking(std::move(usage))
{
    QDir().mkpath(m_settings.previewImagePath(QByteArray()));
}

QByteArray FileSync::calculateContentHash(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

void FileSync::syncFilesWithDisk(const QStringList &formats)
{
    m_tracking.beginSync(formats);
    m_counts = SyncCounts();
    m_unreadable.clear();
    const Paths onDisk = findSupportedFiles();
    // What an aborted scan did not reach must never be taken for deleted.
    if (!m_listener->abortState())
        applyChanges(onDisk);
    m_tracking.endSync(m_project->smartFolders().size(), m_project->files().size());
}

QSet<QString> FileSync::findSupportedFiles()
{
    DirectoryScanner scanner;
    scanner.setAbortCheck(m_listener);
    scanner.setProgressListener(m_listener);
    m_listener->setSteps(ScanSteps);

    QStringList found;
    const QStringList folders = m_project->smartFolders();
    for (const QString &folder : folders)
        found += scanner.findFilesRecursive(folder);
    m_tracking.logFileCountByExtension(found);
    const QStringList supported = m_tracking.supportedFiles();
    return Paths(supported.begin(), supported.end());
}

void FileSync::applyChanges(const Paths &onDisk)
{
    const Paths known = projectFileNames();
    Paths kept = known & onDisk;
    Paths fresh = onDisk - kept;
    Paths gone = known - kept;

    const Paths reconnected = reconnectFiles(fresh, gone);
    gone -= reconnected;
    fresh -= reconnected;
    kept += reconnected;

    m_listener->setSteps(kept.size() + fresh.size());
    m_existingPreviewKeys = existingPreviews();
    removeFileData(gone);
    addFileData(fresh);
    updateFileData(kept);
    removePreviewFiles(m_existingPreviewKeys - allContentKeys());
}

QSet<QString> FileSync::projectFileNames() const
{
    Paths names;
    const auto files = m_project->files();
    names.reserve(files.size());
    for (const QSharedPointer<IFile> &file : files)
        names.insert(file->absoluteFilePath());
    return names;
}

QSet<QString> FileSync::reconnectFiles(const Paths &fresh, const Paths &gone)
{
    Paths reconnected;
    if (fresh.isEmpty() || gone.isEmpty())
        return reconnected;

    QHash<QByteArray, QSharedPointer<IFile>> vanished;
    QSet<int> sizes;
    const auto files = m_project->files();
    for (const QSharedPointer<IFile> &file : files) {
        if (!gone.contains(file->absoluteFilePath()))
            continue;
        QSharedPointer<IFile> &survivor = vanished[file->contentHash()];
        // Of several copies only one survives; none that the user has worked on shall give way
        // to one that he hasn't.
        if (!survivor || bearsUserData(*file) || !bearsUserData(*survivor))
            survivor = file;
        sizes.insert(file->fileSize());
    }

    const QStringList paths = inOrder(fresh);
    for (const QString &path : paths) {
        if (!sizes.contains(int(QFileInfo(path).size())))
            continue;
        QByteArray bytes;
        try {
            bytes = FileTools::readAll(path, FileTools::Binary);
        } catch (const Error &) {
            continue; // noted when its record is made
        }
        const QSharedPointer<IFile> file = vanished.value(calculateContentHash(bytes));
        if (!file)
            continue;
        file->setAbsoluteFilePath(path);
        reconnected.insert(path);
    }

    m_counts.reconnected = reconnected.size();
    if (m_counts.reconnected != 0)
        m_project->setFiles(files);
    return reconnected;
}

QSet<QByteArray> FileSync::existingPreviews()
{
    QSet<QByteArray> keys;
    const QFileInfoList previews = previewFiles(m_settings.previewImagePath(QByteArray()));
    keys.reserve(previews.size());
    for (const QFileInfo &preview : previews) {
        QString name = preview.fileName();
        keys.insert(QByteArray::fromHex(name.remove(QStringLiteral(".png")).toLatin1()));
    }
    return keys;
}

void FileSync::removeFileData(const Paths &gone)
{
    if (gone.isEmpty())
        return;
    const auto files = m_project->files();
    QList<QSharedPointer<IFile>> remaining;
    for (const QSharedPointer<IFile> &file : files) {
        if (!gone.contains(file->absoluteFilePath()))
            remaining.append(file);
    }
    m_project->setFiles(remaining);
    m_counts.removed = files.size() - remaining.size();
}

void FileSync::addFileData(const Paths &fresh)
{
    if (fresh.isEmpty())
        return;
    QList<QSharedPointer<IFile>> files = m_project->files();
    const QStringList paths = inOrder(fresh);
    for (const QString &path : paths) {
        const auto file = QSharedPointer<File>::create(m_project.data());
        file->setAbsoluteFilePath(path);
        if (isStopped())
            ++m_counts.unreached;
        else
            updateFileData(file);
        files.append(file);
    }
    m_project->setFiles(files);
    m_counts.added = fresh.size();
}

void FileSync::updateFileData(const Paths &kept)
{
    if (kept.isEmpty())
        return;
    const auto files = m_project->files();
    for (const QSharedPointer<IFile> &file : files) {
        if (kept.contains(file->absoluteFilePath()) && !isStopped())
            m_counts.updated += updateFileData(file);
    }
}

bool FileSync::isStopped()
{
    if (!m_listener->abortState())
        return false;
    m_listener->proceed(QStringLiteral("Aborting..."));
    return true;
}

int FileSync::updateFileData(const QSharedPointer<IFile> &file)
{
    const QString path = file->absoluteFilePath();
    const QFileInfo info(path);
    m_listener->proceed(QStringLiteral("Loading ") + info.fileName());

    if (isUnchanged(*file, info))
        return 0;

    // Ahead of the new date and size: a file that can't be read must look changed the next time.
    QByteArray bytes;
    try {
        bytes = FileTools::readAll(path, FileTools::Binary);
    } catch (const Error &error) {
        noteUnreadable({path, error.toString(), false});
        return 0;
    }
    file->setModificationDate(static_cast<unsigned int>(info.lastModified().toSecsSinceEpoch()));
    file->setFileSize(static_cast<int>(info.size()));
    const QByteArray hash = calculateContentHash(bytes);
    const bool hasPreview = m_existingPreviewKeys.contains(hash);
    if (hash == file->contentHash() && hasPreview)
        return 1;

    file->setContentHash(hash);
    const Pattern pattern = readPattern(path, bytes);
    if (!pattern) {
        m_tracking.fileFormatError();
        return 1;
    }
    copyMetaData(pattern, file);
    if (!hasPreview)
        updatePreviewImage(pattern, hash);
    return 1;
}

bool FileSync::isUnchanged(const IFile &file, const QFileInfo &onDisk) const
{
    const QByteArray hash = file.contentHash();
    return onDisk.lastModified().toSecsSinceEpoch() == file.modificationDate() &&
           onDisk.size() == file.fileSize() && !hash.isEmpty() &&
           m_existingPreviewKeys.contains(hash);
}

QSharedPointer<Embroidery::EmbPattern> FileSync::readPattern(const QString &path,
                                                             const QByteArray &bytes)
{
    try {
        return Embroidery::EmbroideryIO::readByteArray(path, bytes);
    } catch (const Embroidery::IOException &exception) {
        // One damaged design must not end the run for all the others.
        noteUnreadable({path, exception.message, true});
        return Pattern();
    }
}

void FileSync::noteUnreadable(const UnreadableFile &file)
{
    m_unreadable.append(file);
    ++m_counts.unreadable;
}

void FileSync::copyMetaData(const Pattern &pattern, const QSharedPointer<IFile> &file)
{
    file->setName(pattern->getName());
    const QRectF bounds = pattern->boundingRect();
    file->setDesignSize(
        QSizeF(bounds.width() / UnitsPerMillimetre, bounds.height() / UnitsPerMillimetre));
    file->setStitchCount(pattern->getStitchCount());

    QList<QSharedPointer<IThread>> threads;
    const auto embThreads = pattern->threadList();
    for (const QSharedPointer<Embroidery::EmbThread> &embThread : embThreads) {
        const auto thread = QSharedPointer<Thread>::create(m_project.data());
        thread->setColor(QColor(embThread->getRGB()));
        thread->setColorName(embThread->getDescription());
        const QString chart = embThread->getChart();
        thread->setChart(chart.isEmpty() ? embThread->getBrand() : chart);
        threads.append(thread);
    }
    file->setThreads(threads);
}

void FileSync::updatePreviewImage(const Pattern &pattern, const QByteArray &hash)
{
    m_tracking.beginRenderFile();
    const QPixmap pixmap = PreviewRenderer::renderToPixmap(pattern, PreviewSize);
    m_tracking.endRenderFile(pattern->getStitchCount());
    if (pixmap.isNull())
        return;
    const QString path = m_settings.previewImagePath(hash);
    // Half a picture would pass for a preview in every later run.
    if (!pixmap.save(path))
        QFile::remove(path);
}

QSet<QByteArray> FileSync::allContentKeys() const
{
    QSet<QByteArray> keys;
    const auto files = m_project->files();
    keys.reserve(files.size());
    for (const QSharedPointer<IFile> &file : files)
        keys.insert(file->contentHash());
    return keys;
}

void FileSync::removePreviewFiles(const QSet<QByteArray> &orphans)
{
    if (orphans.isEmpty() ||
        (m_maxCacheSizeMB != 0 && previewDirectorySizeMB() <= m_maxCacheSizeMB))
        return;
    for (const QByteArray &key : orphans)
        QFile::remove(m_settings.previewImagePath(key));
}

qint64 FileSync::previewDirectorySizeMB()
{
    qint64 bytes = 0;
    const QFileInfoList previews = previewFiles(m_settings.previewImagePath(QByteArray()));
    for (const QFileInfo &preview : previews)
        bytes += preview.size();
    return bytes / BytesPerMB;
}
