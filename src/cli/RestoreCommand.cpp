#include "cli/RestoreCommand.h"

#include "catalogue/backups/BackupFolder.h"
#include "catalogue/backups/BackupSummary.h"
#include "catalogue/userdata/RememberedData.h"
#include "cli/BackupReport.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/LocalPath.h"
#include "cli/RestoreController.h"

QString RestoreCommand::summary() const
{
    return tr("Put a backup into the place of the catalogue.");
}

QString RestoreCommand::description() const
{
    return tr("Puts a backup, or another copy of a catalogue, into the place of the catalogue. "
              "The catalogue that was there is kept among the backups, and its path printed.");
}

int RestoreCommand::run(const CommandLine &line) const
{
    const QStringList names = line.positionalArguments();
    if (names.size() != 1)
        throw UsageError(names.isEmpty() ? tr("No file given.")
                                         : tr("Only one file can be given."));
    const QString path = LocalPath::absolute(names.constFirst());
    const auto summary = BackupSummary::of(BackupFolder::read(path));
    if (!summary)
        throw Error(tr("'%1' is no whole catalogue.").arg(names.constFirst()));

    RestoreController controller;
    controller.open();
    const QString kept = controller.restore(path);

    const UserDataMemory *memory = controller.memory();
    const QString failure = memory ? memory->remembered()->failure() : QString();
    if (!failure.isEmpty())
        throw Error(tr("The saved searches of the backup could not be kept: %1").arg(failure));

    StandardOutput output;
    output.writeLine(Console::printable(kept));
    output.writeRemark(BackupReport::line(*summary));
    return output.flush() ? Success : Failure;
}
