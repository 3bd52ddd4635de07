#include "cli/TagCommand.h"

#include "catalogue/records/Project.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/DesignSelection.h"

QString TagCommand::summary() const
{
    return tr("Give designs a tag, or take it from them.");
}

QString TagCommand::description() const
{
    return tr("Gives the designs a tag, or takes it from them. A dash reads their names from "
              "standard input.");
}

QStringList TagCommand::verbs() const
{
    return {QStringLiteral("add"), QStringLiteral("remove")};
}

QList<QCommandLineOption> TagCommand::options() const
{
    return DesignSelection::options();
}

int TagCommand::run(const CommandLine &line) const
{
    const QStringList arguments = line.positionalArguments();
    expectVerb(arguments.value(0));
    const QString tag = arguments.value(1).trimmed();
    if (tag.isEmpty())
        throw UsageError(tr("No tag given."));
    const DesignSelection selection(line, arguments.mid(2), DesignSelection::Nothing);
    const bool adds = arguments.constFirst() == QLatin1String("add");
    return edit(selection, [&](IFile &file, Project &project) {
        const bool hasTag = file.tags().contains(tag);
        if (adds && !hasTag) {
            file.addTag(tag);
            project.addTag(tag);
        } else if (!adds && hasTag) {
            file.removeTag(tag);
        }
    });
}
