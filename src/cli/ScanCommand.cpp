#include "cli/ScanCommand.h"

#include "base/GlobalSettings.h"
#include "catalogue/sync/DataFolder.h"
#include "cli/CatalogueInUseError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ConsoleProgress.h"
#include "cli/ExitStatus.h"
#include "cli/Interrupt.h"
#include "cli/ScanController.h"
#include <QDir>
#include <QFileInfo>
#include <QLockFile>

int ScanCommand::run(const QStringList &arguments)
{
    CommandLine line(QStringLiteral("hoopline-cli scan [options] [FOLDER...]"),
                     tr("Adds the folders to the catalogue and brings it into line with the disk. "
                        "Without a folder it rescans the folders that are there."),
                     arguments);
    if (!line.parse())
        return line.exitStatus();

    QStringList folders;
    const QStringList given = line.positionalArguments();
    for (const QString &folder : given) {
        const QFileInfo info(folder);
        if (folder.isEmpty() || !info.isDir()) {
            Console::reportError(tr("'%1' is not a folder").arg(folder));
            return Failure;
        }
        folders.append(QDir::cleanPath(info.absoluteFilePath()));
    }
    try {
        return scan(folders);
    } catch (const CatalogueInUseError &error) {
        Console::reportError(error.toString());
        return CatalogueInUse;
    }
}

int ScanCommand::scan(const QStringList &folders)
{
    const QString dataPath = GlobalSettings().applicationDataPath();
    DataFolder::prepare(dataPath);
    QLockFile lock(dataPath + QStringLiteral("/hoopline-cli.lock"));
    lock.setStaleLockTime(0); // only a dead process leaves a stale lock, however long a scan takes
    if (!lock.tryLock() && lock.error() == QLockFile::LockFailedError)
        throw CatalogueInUseError(tr("Another scan is running."));

    ScanController controller;
    controller.open();
    synchronise(controller, folders);

    const SyncCounts done = controller.lastScan();
    StandardOutput output;
    output.writeLine(QStringLiteral("added %1, updated %2, moved %3, removed %4, unreadable %5")
                         .arg(done.added)
                         .arg(done.updated)
                         .arg(done.reconnected)
                         .arg(done.removed)
                         .arg(done.unreadable));
    return output.flush() ? Success : Failure;
}

void ScanCommand::synchronise(ScanController &controller, const QStringList &folders)
{
    ConsoleProgress progress;
    Interrupt::install();
    controller.setProgressAbortListener(&progress);
    if (folders.isEmpty())
        controller.scanSmartFolders();
    else
        controller.addDirectories(folders);
    controller.setProgressAbortListener(nullptr);
}
