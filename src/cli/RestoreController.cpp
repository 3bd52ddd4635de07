#include "cli/RestoreController.h"

#include "cli/CommandError.h"

void RestoreController::open()
{
    takeLock();
    const OrganiserGuard guard;
    if (isOrganiserRunning(guard))
        throw CommandError(CatalogueInUse, OrganiserGuard::runningText());
    loadOrCreateProject();
}
