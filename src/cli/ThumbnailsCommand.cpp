#include "cli/ThumbnailsCommand.h"

#include "catalogue/sync/ProjectController.h"
#include "cli/CatalogueChoice.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ConsoleProgress.h"
#include "cli/DesignPicture.h"
#include "cli/DesignSelection.h"
#include "cli/Interrupt.h"
#include "cli/LocalPath.h"
#include "cli/ThumbnailRun.h"
#include <QDir>

QString ThumbnailsCommand::summary() const
{
    return tr("Paint pictures of many designs into a folder.");
}

QString ThumbnailsCommand::description() const
{
    return tr("Paints a picture of each design of the catalogue, or of those that are chosen, "
              "into a folder, which is made if it is missing. A dash reads the names of the "
              "designs from standard input. Pictures that are there already are kept, so that "
              "the command may be stopped and started again.");
}

QList<QCommandLineOption> ThumbnailsCommand::options() const
{
    return QList<QCommandLineOption>{
               {QStringLiteral("force"), tr("Paint pictures anew that are there already.")}} +
           DesignPicture::options() + DesignSelection::options();
}

int ThumbnailsCommand::run(const CommandLine &line) const
{
    const QStringList arguments = line.positionalArguments();
    if (arguments.value(0).isEmpty())
        throw UsageError(tr("No folder given."));
    const DesignPicture picture(line);
    const DesignSelection selection(line, arguments.mid(1), DesignSelection::AllDesigns);
    CatalogueChoice::expectCatalogue();
    ProjectController controller;
    controller.loadProject();
    const DesignSelection::Files files = selection.from(controller);
    const QString folder = LocalPath::absolute(arguments.constFirst());
    if (!QDir().mkpath(folder))
        throw Error(tr("The folder '%1' cannot be made").arg(folder));

    ThumbnailRun run(folder, picture, line.isSet("force"), controller.project()->files());
    {
        ConsoleProgress progress;
        Interrupt::install();
        run.paint(files, progress);
    }
    return run.report();
}
