#include "catalogue/sync/ProjectController.h"

#include "base/EmptyProgressListener.h"
#include "base/Error.h"
#include "base/files/FileTools.h"
#include "base/GDebug.h"
#include "base/GlobalSettings.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/records/DataModelReader.h"
#include "catalogue/records/DataModelWriter.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/sync/DataFolder.h"
#include "catalogue/sync/FileSync.h"
#include "catalogue/userdata/RememberedData.h"
#include "embroidery/EmbroideryIO.h"
#include "preview/cache/PreviewCache.h"
#include "properties/changes/BulkOperation.h"
#include "properties/undo/GUndoStack.h"
#include <algorithm>
#include <iterator>
#include <QDateTime>
#include <QFileInfo>
#include <QSet>
#include <utility>

namespace {

using Record = QSharedPointer<IFile>;
using Files = QList<Record>;

QSet<Record> filesOnceRead(const Files &files)
{
    QSet<Record> read;
    read.reserve(files.size());
    for (const Record &file : files) {
        if (!file->contentHash().isEmpty())
            read.insert(file);
    }
    return read;
}

/** Those whose content was met for the first time, and that bear nothing of their own. */
Files newcomers(const QSet<Record> &readBefore, const Files &files)
{
    Files fresh;
    std::copy_if(files.begin(), files.end(), std::back_inserter(fresh),
                 [&readBefore](const Record &file) {
                     return !readBefore.contains(file) && !file->isFavorite() &&
                            file->notes().isEmpty() && file->tags().isEmpty();
                 });
    return fresh;
}

} // namespace

ProjectController::ProjectController()
    : m_listener(&emptyProgressListener), m_file(GlobalSettings().catalogueFilePath()),
      m_backups(BackupFolder::pathBeside(m_file.path()))
{
}

ProjectController::~ProjectController() = default;

void ProjectController::setProgressAbortListener(IProgressAbortListener *listener)
{
    m_listener = listener ? listener : &emptyProgressListener;
}

void ProjectController::setUsageEventSink(UsageEventSink sink)
{
    m_usage = std::move(sink);
}

void ProjectController::loadOrCreateProject()
{
    DataFolder::prepare(QFileInfo(m_file.path()).absolutePath());
    try {
        loadProject();
        rememberUserData();
        return;
    } catch (const ErrorDoesNotExist &) {
        // The first start.
    } catch (const CatalogueDamagedError &error) {
        gWarning("ProjectController") << QLatin1Char('"') + error.toString() + QLatin1Char('"');
        gWarning("ProjectController") << "failed to read project, creating new one";
        recoverProject();
    }
    openMemory();
    if (m_memory)
        m_memory->restoreLists();
    // A damaged catalogue is kept already, and must not displace a good backup.
    writeProject();
    if (m_memory)
        m_memory->adopt(m_file.lastSeenDigest());
}

void ProjectController::openMemory()
{
    // In a folder of the user's choice nothing is left behind.
    if (GlobalSettings::usesOtherCatalogue())
        return;
    m_memory =
        std::make_unique<UserDataMemory>(m_project, UserDataMemory::pathBeside(m_file.path()));
}

void ProjectController::rememberUserData()
{
    openMemory();
    m_recoveredEdits = m_memory && m_memory->applyUnsaved(m_file.lastSeenDigest());
}

void ProjectController::loadProject()
{
    createProject();
    DataModelReader().readFromBytes(m_project.data(), m_file.read(), m_file.path());
}

void ProjectController::createProject()
{
    m_save.reset();
    m_memory.reset();
    m_selectionModel.reset();
    m_project = QSharedPointer<Project>::create();
    m_selectionModel = std::make_unique<FilterSelectionModel>(m_project);
}

void ProjectController::recoverProject()
{
    const QByteArray damaged = m_file.read();
    const int designs = DataModelReader().recoverFromBytes(m_project.data(), damaged);
    keep(damaged, CatalogueFile::Damaged, designs);
}

QString ProjectController::restore(const QString &backup)
{
    DataModelReader reader;
    reader.parse(m_project.data(), BackupFolder::read(backup), backup);
    if (m_memory)
        m_memory->collect();
    const QByteArray present = DataModelWriter().toBytes(m_project.data());
    QString kept = m_backups.keepMoment(present, QDateTime::currentDateTime(), searches());
    replaceContents(reader, present);
    if (m_memory)
        m_memory->remembered()->restoreSearches(BackupFolder::readSearches(backup));
    m_project->undoStack()->resetClean();
    PreviewCache::instance().clear();
    saveProjectIfModified();
    return kept;
}

void ProjectController::saveCopy(const QString &path) const
{
    FileTools::writeAll(path, DataModelWriter().toBytes(m_project.data()));
    const QByteArray saved = searches();
    if (!saved.isEmpty())
        FileTools::writeAll(BackupFolder::searchesBeside(path), saved);
}

QByteArray ProjectController::searches() const
{
    return m_memory ? m_memory->remembered()->searchesForBackup() : QByteArray();
}

bool ProjectController::isWhole(const QByteArray &bytes) const
{
    try {
        Project aside;
        DataModelReader().parse(&aside, bytes, m_file.path());
        return true;
    } catch (const CatalogueDamagedError &) {
        return false;
    }
}

void ProjectController::reloadProjectIfNewerOnDisk()
{
    finishSave();
    if (!m_file.isNewerThanLastSeen())
        return;
    // Nobody is writing it any more: it is damaged for good.
    if (FileStamp::of(m_file.path()) == m_damaged) {
        saveProjectIfModified();
        return;
    }
    const CatalogueFile before = m_file;
    try {
        reload(m_file.read());
    } catch (const CatalogueDamagedError &) {
        m_damaged = m_file.lastSeen();
        m_file = before;
        m_project->undoStack()->resetClean();
        throw;
    } catch (...) {
        m_file = before;
        throw;
    }
}

void ProjectController::reload(const QByteArray &bytes)
{
    DataModelReader reader;
    reader.parse(m_project.data(), bytes, m_file.path());
    const bool modified = isModified();
    const QByteArray present = DataModelWriter().toBytes(m_project.data());
    if (modified)
        keepAside(present, CatalogueFile::Unsaved);
    replaceContents(reader, present);
    if (m_memory)
        m_memory->adopt(m_file.lastSeenDigest());
}

/** Takes over what was read; the project is as it was, @p present, when it is faulty. */
void ProjectController::replaceContents(DataModelReader &reader, const QByteArray &present)
{
    const bool modified = isModified();
    try {
        reader.fill();
    } catch (...) {
        DataModelReader().readFromBytes(m_project.data(), present, m_file.path());
        if (modified)
            m_project->undoStack()->resetClean();
        throw;
    }
}

void ProjectController::keep(const QByteArray &bytes, CatalogueFile::Fate fate, int designs)
{
    m_kept.append({fate, m_file.keep(bytes, fate), designs});
}

QList<ProjectController::Kept> ProjectController::takeKept()
{
    return std::exchange(m_kept, {});
}

void ProjectController::addDirectories(const QStringList &directories)
{
    const QStringList folders = m_project->smartFolders() + directories;
    m_project->setSmartFolders(sortAndRemoveSubdirectories(folders), tr("add directory"));
    scanSmartFolders();
}

void ProjectController::removeSelectedDirectory()
{
    const QString directory = m_selectionModel->filter()->directoryFilter();
    QStringList folders = m_project->smartFolders();
    if (directory.isEmpty() || !folders.removeOne(directory))
        return;
    m_project->setSmartFolders(folders, tr("remove directory"));
    scanSmartFolders();
}

void ProjectController::scanSmartFolders()
{
    // What leaves the catalogue now may have been edited a moment ago.
    if (m_memory)
        m_memory->collect();
    m_lastScan = SyncCounts();
    m_lastReport = ScanReport();
    BulkOperation bulk;
    synchronise();
    bulk.finish();
    saveProjectIfModified();
}

void ProjectController::synchronise()
{
    const auto readBefore = filesOnceRead(m_project->files());
    FileSync sync(m_project, m_listener, m_usage);
    sync.syncFilesWithDisk(Embroidery::EmbroideryIO::supportedFormats());
    m_lastScan = sync.counts();
    m_lastReport = sync.report();
    if (sync.numChangedFiles() == 0)
        return;
    if (m_memory)
        m_memory->giveBack(newcomers(readBefore, m_project->files()), *m_listener);
    m_project->undoStack()->resetClean();
    PreviewCache::instance().clear();
}

QStringList ProjectController::sortAndRemoveSubdirectories(QStringList list)
{
    LocaleAwareFunctions::sort(list);
    QStringList outermost;
    for (int i = 0; i + 1 < list.size(); ++i) {
        const QString current = list.at(i) + QLatin1Char('/');
        const QString next = list.at(i + 1) + QLatin1Char('/');
        if (current.startsWith(next))
            continue;
        if (next.startsWith(current))
            list[i + 1] = list.at(i);
        else
            outermost.append(list.at(i));
    }
    if (!list.isEmpty())
        outermost.append(list.last());
    return outermost;
}
