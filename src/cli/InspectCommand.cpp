#include "cli/InspectCommand.h"

#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/DesignFile.h"
#include "cli/DesignReport.h"
#include "cli/OutputFile.h"
#include "preview/render/PngEncoder.h"
#include "preview/render/PreviewRenderer.h"
#include <QImage>

namespace {

constexpr int LargestPicture = 10000;

} // namespace

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
    return {
        {QStringLiteral("json"), tr("Print one JSON object per file, a line each.")},
        {QStringLiteral("points"), tr("With --json, list every point.")},
        {QStringLiteral("render"), tr("Write the preview of the one file as PNG."),
         QStringLiteral("OUT.png")},
        {QStringLiteral("card"),
         tr("With --render, paint a square card: on white, with a margin.")},
        {QStringLiteral("force"), tr("With --render, replace a file that is there.")},
        {QStringLiteral("size"), tr("Longer side of the preview in pixels; 400 if not given."),
         QStringLiteral("N"), QStringLiteral("400")},
    };
}

int InspectCommand::run(const CommandLine &line) const
{
    const QStringList names = line.positionalArguments();
    if (names.isEmpty())
        throw UsageError(tr("No file given."));
    const int size = parseSize(line.value("size"));
    const bool renders = line.isSet("render");
    if (renders)
        OutputFile::check(line.value("render"), names, line.isSet("force"));
    if (renders && names.size() != 1)
        throw UsageError(tr("Only one file can be rendered at a time."));

    StandardOutput output;
    DesignReport report(output);
    bool succeeded = true;
    for (const QString &name : names) {
        const DesignFile file = DesignFile::read(name);
        if (line.isSet("json"))
            report.writeJson(file, line.isSet("points"));
        else if (file.isReadable())
            report.writeTable(file);
        else
            Console::reportError(QStringLiteral("%1: %2").arg(name, file.error()));
        if (!file.isReadable())
            succeeded = false;
        else if (renders)
            succeeded = render(file, line, size);
    }
    return output.flush() && succeeded ? Success : Failure;
}

int InspectCommand::parseSize(const QString &text)
{
    bool valid = false;
    const int size = text.toInt(&valid);
    if (!valid || size < 1 || size > LargestPicture)
        throw UsageError(tr("The size must be a number from 1 to %1.").arg(LargestPicture));
    return size;
}

bool InspectCommand::render(const DesignFile &file, const CommandLine &line, int size)
{
    PreviewRenderer renderer;
    const QImage image = line.isSet("card") ? renderer.renderCard(file.pattern(), size)
                                            : renderer.render(file.pattern(), size);
    if (image.isNull()) {
        Console::reportError(tr("%1: The design has no extent to show.").arg(file.name()));
        return false;
    }
    OutputFile::write(line.value("render"), PngEncoder::encode(image));
    return true;
}
