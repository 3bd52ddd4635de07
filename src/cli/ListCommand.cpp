#include "cli/ListCommand.h"

#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/SortOrder.h"
#include "catalogue/sync/ProjectController.h"
#include "cli/CatalogueChoice.h"
#include "cli/CatalogueReport.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/DesignFormat.h"
#include "cli/DesignSelection.h"
#include "cli/LocalPath.h"
#include "embroidery/EmbroideryIO.h"
#include <algorithm>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

/** "WxH" in millimetres. @throws UsageError when @p text is something else */
QSizeF parseSize(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^([0-9]+(?:\\.[0-9]+)?)[xX]([0-9]+(?:\\.[0-9]+)?)$"));
    const auto match = form.match(text);
    if (!match.hasMatch())
        throw UsageError(ListCommand::tr("The size must look like 100x130."));
    return QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble());
}

/** @throws UsageError when designs of that type are not read */
void expectKnownType(const QString &type)
{
    QStringList types = Embroidery::EmbroideryIO::supportedFormats();
    types.replaceInStrings(QStringLiteral("*."), QString());
    if (!types.contains(type, Qt::CaseInsensitive))
        throw UsageError(ListCommand::tr("Unknown type '%1'; there are %2.")
                             .arg(type, types.join(QStringLiteral(", "))));
}

/** @throws UsageError when there is no such order */
SortOrder parseOrder(const QString &text)
{
    const auto order = SortOrder::fromText(text);
    if (!order)
        throw UsageError(
            ListCommand::tr("The order must be one of %1, perhaps with :desc behind it.")
                .arg(SortOrder::keyNames().join(QStringLiteral(", "))));
    return *order;
}

/** @throws UsageError when the output is asked for in more than one form */
void expectOneForm(const CommandLine &line)
{
    QStringList forms;
    for (const char *form : {"json", "csv", "format", "count"}) {
        if (line.isSet(form))
            forms.append(QStringLiteral("--") + QLatin1String(form));
    }
    if (line.isSet("null") && !line.isSet("format"))
        forms.append(QStringLiteral("--null"));
    if (forms.size() > 1)
        throw UsageError(
            ListCommand::tr("Choose one of %1.").arg(forms.join(QStringLiteral(", "))));
}

/** @throws Error when the catalogue knows neither the folder nor any design in it */
void expectKnownFolder(const QString &folder, const Project &project)
{
    const QStringList roots = project.smartFolders();
    const bool isSearched = QFileInfo(folder).isDir() &&
                            std::any_of(roots.begin(), roots.end(), [&](const QString &root) {
                                return LocalPath::liesIn(folder, root);
                            });
    const auto files = project.files();
    const bool holdsDesigns = std::any_of(files.begin(), files.end(), [&](const auto &file) {
        return LocalPath::liesIn(file->absoluteFilePath(), folder);
    });
    if (!isSearched && !holdsDesigns)
        throw Error(ListCommand::tr("The folder '%1' is not in the catalogue.").arg(folder));
}

} // namespace

QString ListCommand::summary() const
{
    return tr("Print the designs of the catalogue.");
}

QString ListCommand::description() const
{
    return tr("Prints the designs of the catalogue, narrowed as in the organizer.");
}

QList<QCommandLineOption> ListCommand::options() const
{
    return {
        {QStringLiteral("folder"), tr("Only designs below this folder."), QStringLiteral("P")},
        {QStringLiteral("tag"), tr("Only designs with this tag."), QStringLiteral("T")},
        {QStringLiteral("type"), tr("Only designs of this format, for instance dst."),
         QStringLiteral("EXT")},
        {QStringLiteral("max-size"), tr("Only designs that fit into this many millimeters."),
         QStringLiteral("WxH")},
        {QStringLiteral("search"),
         tr("Only designs that match, as in the search field: text in the file name or "
            "the notes, and fields such as %1. The manual tells them all.")
             .arg(QStringLiteral("tag:flowers stitches:<10000")),
         QStringLiteral("QUERY")},
        {QStringLiteral("favorites"), tr("Only favorites.")},
        {QStringLiteral("sort"),
         tr("Order by %1; with :desc behind it downwards.")
             .arg(SortOrder::keyNames().join(QStringLiteral(", "))),
         QStringLiteral("KEY[:desc]")},
        {QStringLiteral("json"), tr("Print one JSON object per design, a line each.")},
        {QStringLiteral("csv"), tr("Print comma-separated values.")},
        {QStringLiteral("format"),
         tr("Print a line of this form per design, for instance %1.")
             .arg(QStringLiteral("'{file}\\t{stitch_count}'")),
         QStringLiteral("TEXT")},
        {QStringLiteral("count"), tr("Print only how many designs there are.")},
        {{QStringLiteral("0"), QStringLiteral("null")},
         tr("Print the files, or lines of --format, each with a NUL behind it.")},
    };
}

int ListCommand::run(const CommandLine &line) const
{
    line.expectAtMost(0);
    expectOneForm(line);
    const DesignFormat format(line.isSet("format") ? line.value("format")
                                                   : QStringLiteral("{file}"));
    if (line.isSet("folder") && line.value("folder").isEmpty())
        throw UsageError(tr("The folder must not be empty."));
    if (line.isSet("type"))
        expectKnownType(line.value("type"));
    const QSizeF maxSize = line.isSet("max-size") ? parseSize(line.value("max-size")) : QSizeF();
    const SortOrder order = line.isSet("sort") ? parseOrder(line.value("sort")) : SortOrder();
    DesignSelection::expectRightQuery(line.value("search"));

    ProjectController controller;
    CatalogueChoice::expectCatalogue();
    controller.loadProject();
    const QString folder =
        line.isSet("folder") ? LocalPath::absolute(line.value("folder")) : QString();
    if (!folder.isEmpty())
        expectKnownFolder(folder, *controller.project());

    IFilterModel &filter = *controller.selectionModel()->filter();
    filter.setDirectory(folder);
    filter.setTag(line.value("tag"));
    filter.setFileType(line.value("type"));
    if (maxSize.isValid())
        filter.setMaxDesignSize(maxSize);
    filter.setSearchSubstring(line.value("search"));
    filter.setFavoritesOnly(line.isSet("favorites"));
    filter.setSortOrder(order);
    return print(line, format, filter.filteredFiles());
}

int ListCommand::print(const CommandLine &line, const DesignFormat &format,
                       const QList<QSharedPointer<IFile>> &files)
{
    StandardOutput output;
    CatalogueReport report(output);
    if (line.isSet("json"))
        report.writeJson(files);
    else if (line.isSet("csv"))
        report.writeCsv(files);
    else if (line.isSet("count"))
        output.writeLine(QString::number(files.size()));
    else if (line.isSet("format") || line.isSet("null"))
        report.writeLines(files, format, line.isSet("null"));
    else
        report.writeTable(files);
    return output.flush() ? Success : Failure;
}
