// How ProjectController gets the catalogue to the disk.

#include "base/Error.h"
#include "base/GDebug.h"
#include "base/GlobalSettings.h"
#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/records/DataModelWriter.h"
#include "catalogue/sync/ProjectController.h"
#include "properties/undo/GUndoStack.h"
#include <QDateTime>
#include <QScopeGuard>
#include <system_error>
#include <utility>

namespace {

/**
 * Why a backup failed; empty when it did not. Without one a save goes on: what was edited
 * last is what would be missed most.
 */
QString failureOf(const std::function<void()> &backup)
{
    try {
        backup();
    } catch (const ErrorDoesNotExist &) {
        // There is nothing to be kept.
    } catch (const Error &error) {
        gWarning("ProjectController") << QLatin1Char('"') + error.toString() + QLatin1Char('"');
        return error.toString();
    }
    return {};
}

/** The same for the backup of today. Any thread. */
QString failureOfDay(BackupFolder backups, const CatalogueFile &file, const QByteArray &searches)
{
    return failureOf([&] { backups.keepDay(file.peek(), QDate::currentDate(), searches); });
}

} // namespace

bool ProjectController::isModified() const
{
    return isSaving() || !m_project->undoStack()->isClean();
}

void ProjectController::saveProjectIfModified()
{
    try {
        finishSave();
    } catch (const CatalogueUnsavedError &) {
        // It is tried again.
    }
    if (!isModified())
        return;
    saveProject();
    m_project->undoStack()->setClean();
}

void ProjectController::saveProject()
{
    keepWhatOthersWrote();
    backUp();
    writeProject();
}

void ProjectController::writeProject()
{
    if (m_memory)
        m_memory->collect();
    m_file.write(DataModelWriter().toBytes(m_project.data()));
    if (m_memory)
        m_memory->settle(m_file.lastSeenDigest());
}

void ProjectController::beginSave(std::function<void()> whenDone)
{
    finishSave();
    if (!isModified())
        return;
    keepWhatOthersWrote();
    if (m_memory)
        m_memory->collect();
    std::function<QString()> backup;
    if (isBackupDue())
        backup = [backups = m_backups, file = m_file, searches = searches()] {
            return failureOfDay(backups, file, searches);
        };
    try {
        m_save = std::make_unique<CatalogueSave>(m_project, m_file, std::move(backup),
                                                 std::move(whenDone));
    } catch (const std::system_error &) {
        // There is no thread to be had.
        saveProjectIfModified();
        return;
    }
    // What is edited from now on is not in the file.
    m_project->undoStack()->setClean();
    if (m_memory)
        m_memory->settle(m_save->digest());
}

void ProjectController::finishSave()
{
    const std::unique_ptr<CatalogueSave> save = std::move(m_save);
    if (!save)
        return;
    const auto takeBackupFailure = qScopeGuard([&] {
        if (save->backupFailure())
            m_backupFailure = *save->backupFailure();
    });
    try {
        save->finish(m_file);
    } catch (...) {
        m_project->undoStack()->resetClean();
        if (m_memory)
            m_memory->settleNot(m_file.lastSeenDigest());
        throw;
    }
}

void ProjectController::keepWhatOthersWrote()
{
    if (m_file.isAsLastSeen())
        return;
    try {
        const QByteArray bytes = m_file.peek();
        if (m_file.isLastSeen(bytes))
            return;
        keepAside(bytes, isWhole(bytes) ? CatalogueFile::Replaced : CatalogueFile::Damaged);
    } catch (const ErrorDoesNotExist &) {
        // It was removed; what is in memory takes its place.
    } catch (const CatalogueUnusableError &error) {
        throw CatalogueUnsavedError(error.toString(), error.toString());
    }
}

/** Among the backups; beside the catalogue where that fails, and what is no whole catalogue. */
void ProjectController::keepAside(const QByteArray &bytes, CatalogueFile::Fate fate)
{
    QString backup;
    if (!GlobalSettings::usesOtherCatalogue())
        tryBackup([&] {
            backup = m_backups.keepMoment(bytes, QDateTime::currentDateTime(), searches());
        });
    if (backup.isEmpty() || fate == CatalogueFile::Damaged)
        keep(bytes, fate);
    else
        m_kept.append({fate, backup, -1});
}

bool ProjectController::isBackupDue() const
{
    // What somebody else wrote is kept already, and may be no whole catalogue.
    return !GlobalSettings::usesOtherCatalogue() && m_file.lastSeen().exists() &&
           m_file.isAsLastSeen() && !m_backups.hasDay(QDate::currentDate());
}

void ProjectController::backUp()
{
    if (isBackupDue())
        m_backupFailure = failureOfDay(m_backups, m_file, searches());
}

void ProjectController::tryBackup(const std::function<void()> &backup)
{
    m_backupFailure = failureOf(backup);
}
