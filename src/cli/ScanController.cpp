#include "cli/ScanController.h"

#include "cli/CommandError.h"
#include "cli/SmartFolderCheck.h"
#include <QFileInfo>

void ScanController::open()
{
    takeLock();
    loadOrMakeCatalogue();
    expectFolders();
}

void ScanController::loadOrMakeCatalogue()
{
    {
        const OrganiserGuard guard;
        if (isOrganiserRunning(guard))
            throw CommandError(CatalogueInUse, OrganiserGuard::runningText());
        if (!QFileInfo::exists(projectFilePath())) {
            loadOrCreateProject();
            return;
        }
    }
    loadProject();
    rememberUserData();
}

void ScanController::expectFolders() const
{
    if (!m_prune)
        SmartFolderCheck::expectAll(*project());
}

void ScanController::saveProjectIfModified()
{
    if (!isModified())
        return;
    // A drive can be pulled out while its folders are walked.
    expectFolders();
    if (!m_prune)
        SmartFolderCheck::expectListed(lastReport());
    ExclusiveController::saveProjectIfModified();
}
