#include "cli/InspectCommand.h"

#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/DesignFile.h"
#include "cli/DesignPicture.h"
#include "cli/DesignReport.h"
#include "cli/OutputFile.h"
#include "cli/StandardInput.h"

QString InspectCommand::summary() const
{
    return tr("Read designs and tell about them.");
}

QString InspectCommand::description() const
{
    return tr("Reads designs and tells about them.");
}

QList<QCommandLineOption> InspectCommand::options() const
{
    return QList<QCommandLineOption>{
               {QStringLiteral("json"), tr("Print one JSON object per file, a line each.")},
               {QStringLiteral("points"), tr("With --json, list every point.")},
               {QStringLiteral("render"),
                tr("Write the preview of the one file as PNG; a dash is standard output."),
                QStringLiteral("OUT.png")},
               {QStringLiteral("force"), tr("With --render, replace a file that is there.")},
           } +
           DesignPicture::options();
}

int InspectCommand::run(const CommandLine &line) const
{
    const QStringList names = line.positionalArguments();
    if (names.isEmpty())
        throw UsageError(tr("No file given."));
    const DesignPicture picture(line);
    const bool renders = line.isSet("render");
    const bool rendersToOutput = renders && StandardInput::isDash(line.value("render"));
    if (rendersToOutput && line.isSet("json"))
        throw UsageError(tr("Choose one of --json and a picture on standard output."));
    if (renders && !rendersToOutput)
        OutputFile::check(line.value("render"), names, line.isSet("force"));
    if (renders && names.size() != 1)
        throw UsageError(tr("Only one file can be rendered at a time."));

    StandardOutput output;
    DesignReport report(output);
    bool succeeded = true;
    for (const QString &name : names) {
        const DesignFile file = DesignFile::read(name);
        succeeded = succeeded && file.isReadable();
        if (line.isSet("json"))
            report.writeJson(file, line.isSet("points"));
        else if (!file.isReadable())
            Console::reportError(QStringLiteral("%1: %2").arg(name, file.error()));
        else if (!rendersToOutput)
            report.writeTable(file);
        if (rendersToOutput && file.isReadable())
            output.write(picture.paint(file));
        else if (renders && file.isReadable())
            OutputFile::write(line.value("render"), picture.paint(file));
    }
    return output.flush() && succeeded ? Success : Failure;
}
