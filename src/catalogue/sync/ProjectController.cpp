#include "catalogue/sync/ProjectController.h"

#include "base/EmptyProgressListener.h"
#include "base/Error.h"
#include "base/GDebug.h"
#include "base/GlobalSettings.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/sync/FileSync.h"
#include "embroidery/EmbroideryIO.h"
#include "preview/cache/PreviewCache.h"
#include "properties/changes/ChangeManager.h"
#include "properties/undo/GUndoStack.h"
#include <QFileInfo>
#include <utility>

ProjectController::ProjectController()
    : m_listener(&emptyProgressListener),
      m_projectFilePath(GlobalSettings().applicationDataPath() +
                        QStringLiteral("/hoopline-organizer.xml"))
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
    try {
        loadProject();
        return;
    } catch (const ErrorDoesNotExist &) {
        // The first start.
    } catch (const Error &error) {
        gWarning("ProjectController") << QLatin1Char('"') + error.toString() + QLatin1Char('"');
        gWarning("ProjectController") << "failed to read project, creating new one";
    }
    saveProject();
}

void ProjectController::loadProject()
{
    m_selectionModel.reset();
    m_project = QSharedPointer<Project>::create();
    m_selectionModel = std::make_unique<FilterSelectionModel>(m_project);
    m_project->load(m_projectFilePath);
    m_projectFileDate = dateOnDisk();
}

void ProjectController::saveProjectIfModified()
{
    if (m_project->undoStack()->isClean())
        return;
    saveProject();
    m_project->undoStack()->setClean();
}

void ProjectController::saveProject()
{
    m_project->save(m_projectFilePath);
    m_projectFileDate = dateOnDisk();
}

QDateTime ProjectController::dateOnDisk() const
{
    return QFileInfo(m_projectFilePath).lastModified();
}

void ProjectController::reloadProjectIfNewerOnDisk()
{
    const QDateTime date = dateOnDisk();
    if (m_projectFileDate < date) {
        m_project->load(m_projectFilePath);
        m_projectFileDate = date;
    }
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
    ChangeManager::instance().startBulkOperation({});
    {
        FileSync sync(m_project, m_listener, m_usage);
        sync.syncFilesWithDisk(Embroidery::EmbroideryIO::supportedFormats());
        m_lastScan = sync.counts();
        if (sync.numChangedFiles() > 0) {
            m_project->undoStack()->resetClean();
            PreviewCache::instance().clear();
        }
    }
    ChangeManager::instance().finishBulkOperation(true);
    saveProjectIfModified();
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
