#include "cli/ListCommand.h"

#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/sync/ProjectController.h"
#include "cli/CatalogueReport.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

/** "WxH" in millimetres; an invalid size when @p text is something else. */
QSizeF parseSize(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^([0-9]+(?:\\.[0-9]+)?)[xX]([0-9]+(?:\\.[0-9]+)?)$"));
    const auto match = form.match(text);
    return match.hasMatch() ? QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble())
                            : QSizeF();
}

} // namespace

int ListCommand::run(const QStringList &arguments)
{
    CommandLine line(QStringLiteral("hoopline-cli list [options]"),
                     tr("Prints the designs of the catalogue, narrowed as in the organiser."),
                     arguments);
    addOptions(line);
    if (!line.parse())
        return line.exitStatus();
    if (!line.positionalArguments().isEmpty())
        return line.fail(tr("Unexpected argument '%1'.").arg(line.positionalArguments().first()));
    if (line.isSet("json") && line.isSet("csv"))
        return line.fail(tr("Choose one of --json and --csv."));
    if (line.isSet("folder") && line.value("folder").isEmpty())
        return line.fail(tr("The folder must not be empty."));
    const QSizeF maxSize = parseSize(line.value("max-size"));
    if (line.isSet("max-size") && !maxSize.isValid())
        return line.fail(tr("The size must look like 100x130."));
    return print(line, maxSize);
}

void ListCommand::addOptions(CommandLine &line)
{
    line.addOption(
        {QStringLiteral("folder"), tr("Only designs below this folder."), QStringLiteral("P")});
    line.addOption({QStringLiteral("tag"), tr("Only designs with this tag."), QStringLiteral("T")});
    line.addOption({QStringLiteral("type"), tr("Only designs of this format, for instance dst."),
                    QStringLiteral("EXT")});
    line.addOption({QStringLiteral("max-size"),
                    tr("Only designs that fit into this many millimetres."),
                    QStringLiteral("WxH")});
    line.addOption({QStringLiteral("search"),
                    tr("Only designs whose file name or notes hold the text."),
                    QStringLiteral("TEXT")});
    line.addOption({QStringLiteral("favorites"), tr("Only favourites.")});
    line.addOption({QStringLiteral("json"), tr("Print one JSON object per design, a line each.")});
    line.addOption({QStringLiteral("csv"), tr("Print comma-separated values.")});
}

int ListCommand::print(const CommandLine &line, const QSizeF &maxSize)
{
    ProjectController controller;
    StandardOutput output;
    CatalogueReport report(output);
    QList<QSharedPointer<IFile>> files;
    if (QFileInfo::exists(controller.projectFilePath())) {
        controller.loadProject();
        IFilterModel &filter = *controller.selectionModel()->filter();
        applyFilters(line, maxSize, filter);
        files = filter.filteredFiles();
    }
    if (line.isSet("json"))
        report.writeJson(files);
    else if (line.isSet("csv"))
        report.writeCsv(files);
    else
        report.writeTable(files);
    return output.flush() ? Success : Failure;
}

void ListCommand::applyFilters(const CommandLine &line, const QSizeF &maxSize, IFilterModel &filter)
{
    if (line.isSet("folder"))
        filter.setDirectory(QDir::cleanPath(QFileInfo(line.value("folder")).absoluteFilePath()));
    filter.setTag(line.value("tag"));
    filter.setFileType(line.value("type"));
    if (line.isSet("max-size"))
        filter.setMaxDesignSize(maxSize);
    if (line.isSet("search"))
        filter.setSearchSubstring(line.value("search"));
    filter.setFavoritesOnly(line.isSet("favorites"));
}
