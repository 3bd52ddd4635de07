#include "cli/FoldersCommand.h"

#include "base/GSettings.h"
#include "cli/Annotation.h"
#include "cli/CatalogueChoice.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ExclusiveController.h"
#include "cli/LocalPath.h"
#include <algorithm>

namespace {

using Files = QList<QSharedPointer<IFile>>;

/** @throws Error when one of @p names is no folder of the catalogue */
QStringList smartFolders(const QStringList &names, const QStringList &known)
{
    QStringList folders;
    for (const QString &name : names) {
        const QString folder = LocalPath::absolute(name);
        if (!known.contains(folder))
            throw Error(FoldersCommand::tr("'%1' is none of the catalogue's folders").arg(folder));
        folders.append(folder);
    }
    return folders;
}

bool liesInAny(const QString &path, const QStringList &folders)
{
    return std::any_of(folders.begin(), folders.end(),
                       [&](const QString &folder) { return LocalPath::liesIn(path, folder); });
}

/** @throws Error when words that people wrote would go with @p files */
void expectNoAnnotations(const Files &files)
{
    const auto annotated = int(std::count_if(files.begin(), files.end(), [](const auto &file) {
        return !Annotation::of(*file).isEmpty();
    }));
    if (annotated > 0)
        throw Error(FoldersCommand::tr("%n design(s) in there have tags, notes or a star, which "
                                       "'hoopline-cli export' keeps. --force removes the folders "
                                       "all the same. Nothing was changed.",
                                       nullptr, annotated));
}

} // namespace

QString FoldersCommand::summary() const
{
    return tr("List the folders of the catalogue, or take some out.");
}

QString FoldersCommand::description() const
{
    return tr("Lists the folders of the catalogue, or takes some and their designs out of it. "
              "On the disk nothing is changed.");
}

QStringList FoldersCommand::verbs() const
{
    return {QStringLiteral("list"), QStringLiteral("remove")};
}

QList<QCommandLineOption> FoldersCommand::options() const
{
    return {
        {{QStringLiteral("0"), QStringLiteral("null")},
         tr("End each folder with a NUL rather than a line.")},
        {QStringLiteral("force"), tr("Remove folders though tags, notes or stars go with them.")},
    };
}

int FoldersCommand::run(const CommandLine &line) const
{
    const QStringList arguments = line.positionalArguments();
    const QString verb = arguments.value(0, QStringLiteral("list"));
    expectVerb(verb);
    if (verb == QLatin1String("remove"))
        return remove(line, arguments.mid(1));
    line.expectAtMost(1);
    return list(line);
}

int FoldersCommand::list(const CommandLine &line)
{
    GSettings::setReadOnly(true);
    CatalogueChoice::expectCatalogue();
    ProjectController controller;
    controller.loadProject();
    StandardOutput output;
    const QStringList folders = controller.project()->smartFolders();
    for (const QString &folder : folders)
        output.writeEntry(folder, line.isSet("null"));
    return output.flush() ? Success : Failure;
}

int FoldersCommand::remove(const CommandLine &line, const QStringList &names)
{
    if (names.isEmpty())
        throw UsageError(tr("No folder given."));
    ExclusiveController controller;
    controller.open();
    Project &project = *controller.project();
    QStringList remaining = project.smartFolders();
    const QStringList leaving = smartFolders(names, remaining);
    for (const QString &folder : leaving)
        remaining.removeAll(folder);
    Files kept;
    Files gone;
    const Files files = project.files();
    for (const auto &file : files)
        (liesInAny(file->absoluteFilePath(), leaving) ? gone : kept).append(file);
    if (!line.isSet("force"))
        expectNoAnnotations(gone);
    project.setFiles(kept);
    project.setSmartFolders(remaining, tr("remove directory"));
    controller.saveProjectIfModified();
    Console::remark(tr("%n design(s) left the catalogue", nullptr, gone.size()));
    return Success;
}
