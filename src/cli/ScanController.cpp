#include "cli/ScanController.h"

#include "base/GlobalSettings.h"
#include "catalogue/sync/DataFolder.h"
#include "cli/CommandError.h"
#include "cli/OrganiserGuard.h"
#include "cli/SmartFolderCheck.h"
#include "properties/undo/GUndoStack.h"
#include <QFile>
#include <QFileInfo>

ScanController::ScanController(bool prune)
    : m_prune(prune), m_lock(GlobalSettings().lockFilePath(), QStringLiteral("hoopline-cli"))
{
}

void ScanController::open()
{
    takeLock();
    loadOrMakeCatalogue();
    expectFolders();
}

void ScanController::takeLock()
{
    const QString folder = QFileInfo(projectFilePath()).path();
    DataFolder::prepare(folder);
    // Where there are no locks the guard has to do.
    if (m_lock.tryLock() == FileLock::HeldByOther) {
        if (m_lock.holder().program == QLatin1String("hoopline-cli"))
            throw CommandError(CatalogueInUse, tr("Another scan is running."));
        throw CommandError(CatalogueInUse, OrganiserGuard::runningText());
    }
    // Of earlier versions, which a damaged one could lock out for ever.
    QFile::remove(folder + QStringLiteral("/hoopline-cli.lock"));
}

void ScanController::loadOrMakeCatalogue()
{
    {
        const OrganiserGuard guard;
        if (guard.isOrganiserRunning())
            throw CommandError(CatalogueInUse, OrganiserGuard::runningText());
        if (!QFileInfo::exists(projectFilePath())) {
            loadOrCreateProject();
            return;
        }
    }
    loadProject();
}

void ScanController::expectFolders() const
{
    if (!m_prune)
        SmartFolderCheck::expectAll(*project());
}

void ScanController::saveProjectIfModified()
{
    if (project()->undoStack()->isClean())
        return;
    // A drive can be pulled out while its folders are walked.
    expectFolders();
    if (isNewerOnDisk())
        throw CommandError(CatalogueInUse,
                           tr("The catalogue was changed during the scan. Nothing was saved."));
    if (m_lock.isHeld()) {
        // An organiser that was started meanwhile waits for the lock.
        ProjectController::saveProjectIfModified();
        return;
    }
    const OrganiserGuard guard;
    if (guard.isOrganiserRunning())
        throw CommandError(
            CatalogueInUse,
            tr("Hoopline Organizer was started during the scan. Nothing was saved."));
    ProjectController::saveProjectIfModified();
}
