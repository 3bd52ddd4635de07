#include "cli/FavoriteCommand.h"

#include "catalogue/records/IFile.h"
#include "cli/CommandLine.h"
#include "cli/DesignSelection.h"

QString FavoriteCommand::summary() const
{
    return tr("Make designs favorites, or no longer.");
}

QString FavoriteCommand::description() const
{
    return tr("Makes the designs favorites. A dash reads their names from standard input.");
}

QList<QCommandLineOption> FavoriteCommand::options() const
{
    return QList<QCommandLineOption>{
               {QStringLiteral("remove"), tr("They are no longer favorites.")}} +
           DesignSelection::options();
}

int FavoriteCommand::run(const CommandLine &line) const
{
    const DesignSelection selection(line, line.positionalArguments(), DesignSelection::Nothing);
    const bool favorite = !line.isSet("remove");
    return edit(selection, [favorite](IFile &file, Project &) {
        if (file.isFavorite() != favorite)
            file.setFavorite(favorite);
    });
}
