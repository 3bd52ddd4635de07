#include "cli/Command.h"

#include "base/Spelling.h"
#include "cli/BackupCommand.h"
#include "cli/CatalogueChoice.h"
#include "cli/CommandError.h"
#include "cli/CompletionsCommand.h"
#include "cli/DuplicatesCommand.h"
#include "cli/ExportCommand.h"
#include "cli/FavoriteCommand.h"
#include "cli/FoldersCommand.h"
#include "cli/ImportCommand.h"
#include "cli/InspectCommand.h"
#include "cli/ListCommand.h"
#include "cli/NoteCommand.h"
#include "cli/RestoreCommand.h"
#include "cli/ScanCommand.h"
#include "cli/SheetCommand.h"
#include "cli/TagCommand.h"
#include "cli/ThumbnailsCommand.h"

QString Command::usage() const
{
    return QStringLiteral("hoopline-cli %1 %2").arg(name(), arguments());
}

QList<QCommandLineOption> Command::allOptions() const
{
    QList<QCommandLineOption> all = options();
    if (usesCatalogue())
        all.append(CatalogueChoice::option());
    return all;
}

void Command::expectVerb(const QString &verb) const
{
    if (verbs().contains(verb))
        return;
    const QString message =
        tr("What to do must be one of: %1.").arg(verbs().join(QStringLiteral(", ")));
    throw UsageError(withSuggestion(message, verb, verbs()));
}

Commands allCommands()
{
    Commands commands;
    commands.push_back(std::make_unique<ScanCommand>());
    commands.push_back(std::make_unique<FoldersCommand>());
    commands.push_back(std::make_unique<InspectCommand>());
    commands.push_back(std::make_unique<ListCommand>());
    commands.push_back(std::make_unique<DuplicatesCommand>());
    commands.push_back(std::make_unique<ThumbnailsCommand>());
    commands.push_back(std::make_unique<SheetCommand>());
    commands.push_back(std::make_unique<TagCommand>());
    commands.push_back(std::make_unique<NoteCommand>());
    commands.push_back(std::make_unique<FavoriteCommand>());
    commands.push_back(std::make_unique<ExportCommand>());
    commands.push_back(std::make_unique<ImportCommand>());
    commands.push_back(std::make_unique<BackupCommand>());
    commands.push_back(std::make_unique<RestoreCommand>());
    commands.push_back(std::make_unique<CompletionsCommand>());
    return commands;
}

QString withSuggestion(const QString &message, const QString &word, const QStringList &words)
{
    const QString nearest = Spelling::nearest(word, words);
    return nearest.isEmpty()
               ? message
               : message + QLatin1Char(' ') + Command::tr("Did you mean '%1'?").arg(nearest);
}
