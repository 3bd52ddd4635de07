#include "cli/ExclusiveController.h"

#include "base/GlobalSettings.h"
#include "catalogue/sync/DataFolder.h"
#include "cli/CatalogueChoice.h"
#include "cli/CommandError.h"
#include "cli/Console.h"
#include <QFile>
#include <QFileInfo>

ExclusiveController::ExclusiveController()
    : m_lock(GlobalSettings().lockFilePath(), QStringLiteral("hoopline-cli"))
{
}

ExclusiveController::~ExclusiveController()
{
    // In a folder of the user's choice nothing is left behind.
    if (GlobalSettings::usesOtherCatalogue())
        m_lock.unlockAndRemove();
}

void ExclusiveController::open()
{
    CatalogueChoice::expectCatalogue();
    takeLock();
    {
        const OrganiserGuard guard;
        if (isOrganiserRunning(guard))
            throw CommandError(CatalogueInUse, OrganiserGuard::runningText());
    }
    loadProject();
    rememberUserData();
}

void ExclusiveController::takeLock()
{
    const QString folder = QFileInfo(projectFilePath()).path();
    // A folder of the user's choice keeps its permissions.
    if (!GlobalSettings::usesOtherCatalogue() || !QFileInfo::exists(folder))
        DataFolder::prepare(folder);
    // Where there are no locks the guard has to do.
    if (m_lock.tryLock() == FileLock::HeldByOther) {
        if (m_lock.holder().program == QLatin1String("hoopline-cli"))
            throw CommandError(CatalogueInUse,
                               tr("Another hoopline-cli is working on the catalogue."));
        throw CommandError(CatalogueInUse, OrganiserGuard::runningText());
    }
    // Of earlier versions, which a damaged one could lock out for ever.
    if (!GlobalSettings::usesOtherCatalogue())
        QFile::remove(folder + QStringLiteral("/hoopline-cli.lock"));
}

bool ExclusiveController::isOrganiserRunning(const OrganiserGuard &guard)
{
    return !GlobalSettings::usesOtherCatalogue() && guard.isOrganiserRunning();
}

void ExclusiveController::saveProjectIfModified()
{
    if (!isModified())
        return;
    if (isNewerOnDisk())
        throw CommandError(CatalogueInUse,
                           tr("The catalogue was changed meanwhile. Nothing was saved."));
    if (m_lock.isHeld()) {
        // An organiser that was started meanwhile waits for the lock.
        save();
        return;
    }
    const OrganiserGuard guard;
    if (isOrganiserRunning(guard))
        throw CommandError(CatalogueInUse,
                           tr("Hoopline Organizer was started meanwhile. Nothing was saved."));
    save();
}

void ExclusiveController::save()
{
    ProjectController::saveProjectIfModified();
    if (!backupFailure().isEmpty())
        Console::reportError(
            tr("No backup of the catalogue could be made: %1").arg(backupFailure()));
}
