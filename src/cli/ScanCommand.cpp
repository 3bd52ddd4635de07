#include "cli/ScanCommand.h"

#include "base/Error.h"
#include "base/GSettings.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ConsoleProgress.h"
#include "cli/ExitStatus.h"
#include "cli/Interrupt.h"
#include "cli/LocalPath.h"
#include "cli/ScanController.h"
#include "cli/ScanRehearsal.h"
#include <algorithm>
#include <QFileInfo>
#include <QScopeGuard>

QString ScanCommand::summary() const
{
    return tr("Add folders to the catalogue, bring it into line with the disk.");
}

QString ScanCommand::description() const
{
    return tr("Adds the folders to the catalogue and brings it into line with the disk. "
              "Without a folder it rescans the folders that are there.");
}

QList<QCommandLineOption> ScanCommand::options() const
{
    return {
        {QStringLiteral("prune"),
         tr("Go on while a folder is missing or suddenly empty; its designs leave the catalogue.")},
        {QStringLiteral("dry-run"), tr("Only tell what would happen.")},
    };
}

int ScanCommand::run(const CommandLine &line) const
{
    const QStringList folders = parseFolders(line.positionalArguments());
    const bool prune = line.isSet("prune");
    GSettings::setReadOnly(line.isSet("dry-run"));
    if (line.isSet("dry-run"))
        return ScanRehearsal(folders).run(prune);

    ScanController controller(prune);
    controller.open();
    {
        const auto named = qScopeGuard([&controller] {
            nameUnreadable(controller);
            nameSkipped(controller);
        });
        synchronise(controller, folders);
    }
    return report(controller);
}

QStringList ScanCommand::parseFolders(const QStringList &names)
{
    QStringList folders;
    for (const QString &name : names) {
        if (name.isEmpty() || !QFileInfo(LocalPath::of(name)).isDir())
            throw Error(tr("'%1' is not a folder").arg(name));
        folders.append(LocalPath::absolute(name));
    }
    return folders;
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

void ScanCommand::nameUnreadable(const ScanController &controller)
{
    const QList<UnreadableFile> unreadable = controller.unreadableFiles();
    for (const UnreadableFile &file : unreadable)
        Console::reportError(file.reason.contains(file.path)
                                 ? file.reason
                                 : QStringLiteral("%1: %2").arg(file.path, file.reason));
}

void ScanCommand::nameSkipped(const ScanController &controller)
{
    const QVector<SkippedEntry> skipped = controller.lastReport().skipped;
    for (const SkippedEntry &entry : skipped)
        Console::reportError(
            QStringLiteral("%1: %2").arg(entry.path, entry.kind == SkippedEntry::UndecodableName
                                                         ? tr("left out, the name is no valid text")
                                                         : entry.reason));
}

int ScanCommand::report(const ScanController &controller)
{
    const SyncCounts done = controller.lastScan();
    if (done.unreached > 0)
        Console::reportError(
            tr("Stopped; %n new design(s) are still to be read.", nullptr, done.unreached));

    StandardOutput output;
    output.writeLine(QStringLiteral("added %1, updated %2, moved %3, removed %4, unreadable %5")
                         .arg(done.added - done.unreached)
                         .arg(done.updated)
                         .arg(done.reconnected)
                         .arg(done.removed)
                         .arg(done.unreadable));
    const bool written = output.flush();
    if (Interrupt::received() != 0)
        return SignalReceived + Interrupt::received();
    const QList<UnreadableFile> unreadable = controller.unreadableFiles();
    const bool diskFailed = std::any_of(unreadable.begin(), unreadable.end(),
                                        [](const auto &file) { return !file.damaged; });
    return written && !diskFailed ? Success : Failure;
}
