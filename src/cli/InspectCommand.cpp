#include "cli/InspectCommand.h"

#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/DesignFile.h"
#include "cli/DesignReport.h"
#include "cli/ExitStatus.h"
#include "preview/render/PreviewRenderer.h"
#include <QImage>

namespace {

constexpr int LargestPicture = 10000;

} // namespace

int InspectCommand::run(const QStringList &arguments)
{
    CommandLine line(QStringLiteral("hoopline-cli inspect [options] FILE..."),
                     tr("Reads designs and tells about them."), arguments);
    line.addOption({QStringLiteral("json"), tr("Print one JSON object per file, a line each.")});
    line.addOption({QStringLiteral("points"), tr("With --json, list every point.")});
    line.addOption({QStringLiteral("render"), tr("Write the preview of the one file as PNG."),
                    QStringLiteral("OUT.png")});
    line.addOption({QStringLiteral("size"),
                    tr("Longer side of the preview in pixels; 400 if not given."),
                    QStringLiteral("N"), QStringLiteral("400")});
    if (!line.parse())
        return line.exitStatus();

    const QStringList names = line.positionalArguments();
    bool validSize = false;
    const int size = line.value("size").toInt(&validSize);
    if (names.isEmpty())
        return line.fail(tr("No file given."));
    if (!validSize || size < 1 || size > LargestPicture)
        return line.fail(tr("The size must be a number from 1 to %1.").arg(LargestPicture));
    if (line.isSet("render") && names.size() != 1)
        return line.fail(tr("Only one file can be rendered at a time."));

    StandardOutput output;
    DesignReport report(output);
    bool succeeded = true;
    for (const QString &name : names) {
        const DesignFile file = DesignFile::read(name);
        succeeded = succeeded && file.isReadable();
        if (line.isSet("json"))
            report.writeJson(file, line.isSet("points"));
        else if (file.isReadable())
            report.writeTable(file);
        else
            Console::reportError(QStringLiteral("%1: %2").arg(name, file.error()));
        if (line.isSet("render") && file.isReadable())
            succeeded = render(file, line.value("render"), size);
    }
    return output.flush() && succeeded ? Success : Failure;
}

bool InspectCommand::render(const DesignFile &file, const QString &target, int size)
{
    const QImage image = PreviewRenderer().render(file.pattern(), size);
    if (image.isNull()) {
        Console::reportError(tr("%1: The design has no extent to show.").arg(file.name()));
        return false;
    }
    if (!image.save(target, "PNG")) {
        Console::reportError(tr("Failed to write %1").arg(target));
        return false;
    }
    return true;
}
