#include "cli/SheetCommand.h"

#include "base/GlobalSettings.h"
#include "catalogue/sync/ProjectController.h"
#include "cli/CatalogueChoice.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ConsoleProgress.h"
#include "cli/DesignSelection.h"
#include "cli/Interrupt.h"
#include "cli/LocalPath.h"
#include "cli/OutputFile.h"
#include "preview/sheets/PdfFile.h"
#include "preview/sheets/SheetDesign.h"
#include <QFileInfo>
#include <QHash>

namespace {

struct FactName
{
    QString name;
    SheetOptions::Fact fact;
};

QVector<FactName> factNames()
{
    return {{QStringLiteral("name"), SheetOptions::Name},
            {QStringLiteral("size"), SheetOptions::Size},
            {QStringLiteral("stitches"), SheetOptions::Stitches},
            {QStringLiteral("colors"), SheetOptions::Colors},
            {QStringLiteral("tags"), SheetOptions::Tags},
            {QStringLiteral("notes"), SheetOptions::Notes}};
}

QStringList namesOfFacts()
{
    QStringList names;
    for (const FactName &fact : factNames())
        names.append(fact.name);
    return names;
}

QStringList namesOfPapers()
{
    QStringList names;
    for (const QPageSize::PageSizeId paper : SheetOptions::papers())
        names.append(QPageSize::key(paper));
    return names;
}

QVector<SheetDesign> catalogueDesigns(const DesignSelection &selection)
{
    CatalogueChoice::expectCatalogue();
    ProjectController controller;
    controller.loadProject();
    return SheetDesign::of(selection.from(controller));
}

/** In the order of the names; with their tags and notes where the catalogue knows them. */
QVector<SheetDesign> namedDesigns(const QStringList &paths)
{
    QHash<QString, SheetDesign> known;
    ProjectController controller;
    if (QFileInfo::exists(controller.projectFilePath())) {
        controller.loadProject();
        for (const SheetDesign &design : SheetDesign::of(controller.project()->files()))
            known.insert(design.path, design);
    }
    QVector<SheetDesign> designs;
    for (const QString &path : paths)
        designs.append(known.contains(path) ? known.value(path) : SheetDesign::of(path));
    return designs;
}

QStringList pathsOf(const QVector<SheetDesign> &designs)
{
    QStringList paths;
    for (const SheetDesign &design : designs)
        paths.append(design.path);
    return paths;
}

} // namespace

QString SheetCommand::summary() const
{
    return tr("Put pictures of designs onto pages of a PDF.");
}

QString SheetCommand::description() const
{
    return tr("Makes a PDF with a contact sheet of all designs of the catalogue, or of those that "
              "are chosen, or with a work sheet for each. Designs that are named need not be in "
              "the catalogue and come in the order of their names; a dash reads the names from "
              "standard input.");
}

QList<QCommandLineOption> SheetCommand::options() const
{
    return QList<QCommandLineOption>{
               {QStringLiteral("pdf"), tr("Where the PDF goes to."), QStringLiteral("OUT.pdf")},
               {QStringLiteral("force"), tr("Replace a file that is there.")},
               {QStringLiteral("work"),
                tr("A work sheet for each design rather than a contact sheet of all.")},
               {QStringLiteral("paper"),
                tr("One of %1; A4 if not given.").arg(namesOfPapers().join(QStringLiteral(", "))),
                QStringLiteral("NAME"), QStringLiteral("A4")},
               {QStringLiteral("landscape"), tr("The paper lies on its longer side.")},
               {QStringLiteral("title"), tr("Title of a contact sheet."), QStringLiteral("TEXT")},
               {QStringLiteral("columns"), tr("Columns of a contact sheet; 4 if not given."),
                QStringLiteral("N"), QStringLiteral("4")},
               {QStringLiteral("facts"),
                tr("What stands under each picture of a contact sheet: some of %1, with commas "
                   "between them, or nothing.")
                    .arg(namesOfFacts().join(QStringLiteral(", "))),
                QStringLiteral("LIST"), QStringLiteral("name,size,stitches,colors")},
               {QStringLiteral("by-folder"), tr("A contact sheet with a heading for each folder.")},
               {QStringLiteral("no-true-size"), tr("Work sheets without a page in true size.")},
               {QStringLiteral("no-page-numbers"), tr("Pages without numbers.")}} +
           DesignSelection::options();
}

SheetOptions::Facts SheetCommand::parseFacts(const QString &list)
{
    SheetOptions::Facts facts;
    const QStringList wanted = list.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &name : wanted) {
        const int index = namesOfFacts().indexOf(name.trimmed());
        if (index < 0)
            throw UsageError(tr("Unknown fact '%1'; there are %2.")
                                 .arg(name, namesOfFacts().join(QStringLiteral(", "))));
        facts |= factNames().at(index).fact;
    }
    return facts;
}

SheetOptions SheetCommand::parse(const CommandLine &line)
{
    SheetOptions options;
    options.kind = line.isSet("work") ? SheetOptions::Work : SheetOptions::Contact;
    const auto paper = SheetOptions::paperOf(line.value("paper"));
    if (!paper)
        throw UsageError(tr("Unknown paper '%1'; there are %2.")
                             .arg(line.value("paper"), namesOfPapers().join(QStringLiteral(", "))));
    options.paper = *paper;
    options.landscape = line.isSet("landscape");
    options.title = line.value("title").simplified();
    options.columns = line.value("columns").toInt();
    if (options.columns < 1 || options.columns > SheetOptions::MostColumns)
        throw UsageError(
            tr("The columns must be a number from 1 to %1.").arg(SheetOptions::MostColumns));
    options.facts = parseFacts(line.value("facts"));
    options.folderHeadings = line.isSet("by-folder");
    options.trueSize = !line.isSet("no-true-size");
    options.pageNumbers = !line.isSet("no-page-numbers");
    options.imperial = GlobalSettings().imperialUnits();
    return options;
}

int SheetCommand::run(const CommandLine &line) const
{
    const QString target = line.value("pdf");
    if (target.isEmpty())
        throw UsageError(tr("No PDF given; --pdf OUT.pdf tells where it goes to."));
    const SheetOptions options = parse(line);
    const DesignSelection selection(line, line.positionalArguments(), DesignSelection::AllDesigns);
    const QVector<SheetDesign> designs =
        selection.isByName() ? namedDesigns(selection.paths()) : catalogueDesigns(selection);
    if (designs.isEmpty())
        throw Error(tr("There are no designs to show."));
    OutputFile::check(target, pathsOf(designs), line.isSet("force"));

    int pages = 0;
    {
        ConsoleProgress progress;
        Interrupt::install();
        pages = PdfFile::write(LocalPath::of(target), designs, options, progress);
    }
    if (pages == 0)
        return SignalReceived + Interrupt::received();
    StandardOutput output;
    output.writeLine(QStringLiteral("designs %1, pages %2").arg(designs.size()).arg(pages));
    return output.flush() ? Success : Failure;
}
