#include "cli/ScanCommand.h"

#include "base/Error.h"
#include "base/GSettings.h"
#include "cli/CatalogueChoice.h"
#include "cli/CommandLine.h"
#include "cli/ConsoleProgress.h"
#include "cli/ExitStatus.h"
#include "cli/Interrupt.h"
#include "cli/LocalPath.h"
#include "cli/ScanController.h"
#include "cli/ScanOutput.h"
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
        {QStringLiteral("json"), tr("Tell it as JSON objects, a line each.")},
    };
}

int ScanCommand::run(const CommandLine &line) const
{
    const QStringList folders = parseFolders(line.positionalArguments());
    const bool prune = line.isSet("prune");
    const bool json = line.isSet("json");
    CatalogueChoice::expectRoomForPictures();
    GSettings::setReadOnly(line.isSet("dry-run"));
    if (line.isSet("dry-run"))
        return ScanRehearsal(folders, json).run(prune);

    ScanController controller(prune);
    controller.open();
    ScanOutput output(json);
    {
        const auto named = qScopeGuard([&] {
            output.tellUnreadable(controller.unreadableFiles());
            output.tellSkipped(controller.lastReport().skipped);
        });
        synchronise(controller, folders);
    }
    output.tellCounts(controller.lastScan());
    return finish(controller, output);
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

int ScanCommand::finish(const ScanController &controller, ScanOutput &output)
{
    const bool written = output.flush();
    if (Interrupt::received() != 0)
        return SignalReceived + Interrupt::received();
    const QList<UnreadableFile> unreadable = controller.unreadableFiles();
    const bool diskFailed = std::any_of(unreadable.begin(), unreadable.end(),
                                        [](const auto &file) { return !file.damaged; });
    return written && !diskFailed ? Success : Failure;
}
