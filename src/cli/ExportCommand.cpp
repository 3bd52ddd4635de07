#include "cli/ExportCommand.h"

#include "catalogue/sync/ProjectController.h"
#include "cli/Annotation.h"
#include "cli/CatalogueChoice.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/Csv.h"
#include "cli/JsonWriter.h"
#include "cli/OutputFile.h"
#include "cli/StandardInput.h"

namespace {

QList<Annotation> annotationsOf(const Project &project)
{
    QList<Annotation> annotations;
    const auto files = project.files();
    for (const auto &file : files) {
        const Annotation annotation = Annotation::of(*file);
        if (!annotation.isEmpty())
            annotations.append(annotation);
    }
    return annotations;
}

QByteArray json(const QList<Annotation> &annotations)
{
    ByteBuffer buffer;
    JsonWriter writer(buffer);
    for (const Annotation &annotation : annotations) {
        writer.beginObject();
        writer.member("md5", QString::fromLatin1(annotation.contentHash.toHex()));
        writer.member("file", annotation.path);
        writer.member("name", annotation.name);
        writer.key("tags");
        writer.beginArray();
        for (const QString &tag : annotation.tags)
            writer.value(tag);
        writer.endArray();
        writer.member("notes", annotation.notes);
        writer.member("favorite", annotation.favorite);
        writer.endObject();
        writer.endLine();
    }
    return buffer.bytes();
}

QByteArray csv(const QList<Annotation> &annotations)
{
    QString text = QStringLiteral("md5,file,name,tags,notes,favorite\n");
    for (const Annotation &annotation : annotations) {
        text += Csv::line({QString::fromLatin1(annotation.contentHash.toHex()), annotation.path,
                           annotation.name, Csv::line(annotation.tags, Csv::TagSeparator),
                           annotation.notes,
                           annotation.favorite ? QStringLiteral("true") : QStringLiteral("false")});
        text += QLatin1Char('\n');
    }
    return text.toUtf8();
}

/** Lines stay lines; nothing else steers the terminal. */
QByteArray printable(const QByteArray &bytes)
{
    QStringList lines = QString::fromUtf8(bytes).split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = Console::printable(line);
    return lines.join(QLatin1Char('\n')).toUtf8();
}

} // namespace

QString ExportCommand::summary() const
{
    return tr("Write tags, notes and stars, to take them along.");
}

QString ExportCommand::description() const
{
    return tr("Writes the tags, notes and stars of the catalogue to a file, or to standard "
              "output: a line for each design that has any, known by its content, its path and "
              "its name. 'hoopline-cli import' reads it.");
}

QList<QCommandLineOption> ExportCommand::options() const
{
    return {
        {QStringLiteral("json"), tr("Write JSON, as without it for a FILE that ends in .json.")},
        {QStringLiteral("csv"), tr("Write comma-separated values, as for all others.")},
        {QStringLiteral("force"), tr("Replace a file that is there.")},
    };
}

int ExportCommand::run(const CommandLine &line) const
{
    line.expectAtMost(1);
    const QString name = line.positionalArguments().value(0, QStringLiteral("-"));
    if (line.isSet("json") && line.isSet("csv"))
        throw UsageError(tr("Choose one of --json and --csv."));
    const bool asJson =
        line.isSet("json") ||
        (!line.isSet("csv") && name.endsWith(QLatin1String(".json"), Qt::CaseInsensitive));
    const bool toFile = !StandardInput::isDash(name);
    if (toFile)
        OutputFile::check(name, {}, line.isSet("force"));

    CatalogueChoice::expectCatalogue();
    ProjectController controller;
    controller.loadProject();
    const QList<Annotation> annotations = annotationsOf(*controller.project());
    const QByteArray bytes = asJson ? json(annotations) : csv(annotations);
    if (toFile) {
        OutputFile::write(name, bytes);
        Console::remark(tr("%n design(s)", nullptr, annotations.size()));
        return Success;
    }
    StandardOutput output;
    output.write(output.isTerminal() ? printable(bytes) : bytes);
    return output.flush() ? Success : Failure;
}
