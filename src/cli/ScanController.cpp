#include "cli/ScanController.h"

#include "cli/CatalogueInUseError.h"
#include "cli/OrganiserGuard.h"
#include "properties/undo/GUndoStack.h"
#include <QFileInfo>

void ScanController::open()
{
    {
        const OrganiserGuard guard;
        if (guard.isOrganiserRunning())
            throw CatalogueInUseError(
                tr("Hoopline Organizer is running. Close it first, or rescan in its window."));
        if (!QFileInfo::exists(projectFilePath())) {
            loadOrCreateProject();
            return;
        }
    }
    loadProject();
}

void ScanController::saveProjectIfModified()
{
    if (project()->undoStack()->isClean())
        return;
    const OrganiserGuard guard;
    if (guard.isOrganiserRunning() || isNewerOnDisk())
        throw CatalogueInUseError(
            tr("Hoopline Organizer was started during the scan. Nothing was saved."));
    ProjectController::saveProjectIfModified();
}
