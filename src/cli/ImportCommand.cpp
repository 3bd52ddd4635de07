#include "cli/ImportCommand.h"

#include "base/GSettings.h"
#include "cli/AnnotationImport.h"
#include "cli/AnnotationReader.h"
#include "cli/CatalogueChoice.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ExclusiveController.h"
#include "cli/StandardInput.h"
#include <memory>

namespace {

/** One that changes nothing only looks. */
std::unique_ptr<ProjectController> openCatalogue(bool dryRun)
{
    if (!dryRun) {
        auto controller = std::make_unique<ExclusiveController>();
        controller->open();
        return controller;
    }
    CatalogueChoice::expectCatalogue();
    auto controller = std::make_unique<ProjectController>();
    controller->loadProject();
    return controller;
}

int report(const AnnotationImport &import, bool dryRun)
{
    for (const QString &name : import.unknown())
        Console::reportError(ImportCommand::tr("%1 is not in the catalogue").arg(name));
    StandardOutput output;
    const QStringList updated = import.updated();
    if (dryRun) {
        for (const QString &path : updated)
            output.writeLine(QStringLiteral("update ") + Console::printable(path));
    }
    output.writeLine((dryRun ? QStringLiteral("would update %1, unchanged %2, unknown %3")
                             : QStringLiteral("updated %1, unchanged %2, unknown %3"))
                         .arg(updated.size())
                         .arg(import.unchanged())
                         .arg(import.unknown().size()));
    return output.flush() ? Success : Failure;
}

} // namespace

QString ImportCommand::summary() const
{
    return tr("Bring exported tags, notes and stars into the catalogue.");
}

QString ImportCommand::description() const
{
    return tr("Brings the tags, notes and stars of a file that 'hoopline-cli export' has written, "
              "or of standard input, to the designs of the same content, or else of the same "
              "path. What is there stays: notes are written below those that differ.");
}

QList<QCommandLineOption> ImportCommand::options() const
{
    return {{QStringLiteral("dry-run"), tr("Only tell what would happen.")}};
}

int ImportCommand::run(const CommandLine &line) const
{
    const QStringList names = line.positionalArguments();
    if (names.isEmpty())
        throw UsageError(tr("No file given."));
    line.expectAtMost(1);
    const bool dryRun = line.isSet("dry-run");
    GSettings::setReadOnly(dryRun);
    const QList<Annotation> annotations =
        AnnotationReader().read(StandardInput::readAll(names.constFirst()));

    const auto controller = openCatalogue(dryRun);
    AnnotationImport import(*controller->project());
    for (const Annotation &annotation : annotations)
        import.add(annotation);
    if (!dryRun)
        controller->saveProjectIfModified();
    return report(import, dryRun);
}
