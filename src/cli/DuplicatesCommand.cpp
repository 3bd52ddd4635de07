#include "cli/DuplicatesCommand.h"

#include "catalogue/duplicates/DuplicateFinder.h"
#include "catalogue/sync/ProjectController.h"
#include "cli/CatalogueChoice.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ConsoleProgress.h"
#include "cli/ExitStatus.h"
#include "cli/Interrupt.h"
#include "cli/JsonWriter.h"
#include <chrono>
#include <future>

namespace {

constexpr std::chrono::milliseconds ProgressInterval(50);

/** For programs; never translated. */
QString keyOf(DuplicateGroup::Likeness likeness)
{
    switch (likeness) {
    case DuplicateGroup::SameContent:
        return QStringLiteral("same-content");
    case DuplicateGroup::SameStitches:
        return QStringLiteral("same-stitches");
    case DuplicateGroup::NearlySameStitches:
        break;
    }
    return QStringLiteral("nearly-same-stitches");
}

QString textOf(DuplicateGroup::Likeness likeness)
{
    switch (likeness) {
    case DuplicateGroup::SameContent:
        return DuplicatesCommand::tr("The same content:");
    case DuplicateGroup::SameStitches:
        return DuplicatesCommand::tr("The same stitches in other files:");
    case DuplicateGroup::NearlySameStitches:
        break;
    }
    return DuplicatesCommand::tr("Very likely the same design, stitches within 0.2 mm:");
}

QVector<DuplicateCandidate> candidatesOf(const QList<QSharedPointer<IFile>> &files)
{
    QVector<DuplicateCandidate> candidates;
    candidates.reserve(files.size());
    for (const auto &file : files)
        candidates.append({file->absoluteFilePath(), file->contentHash()});
    return candidates;
}

} // namespace

QString DuplicatesCommand::summary() const
{
    return tr("Print the designs that are there more than once.");
}

QString DuplicatesCommand::description() const
{
    return tr("Prints the designs of the catalogue that are there more than once: files of the "
              "same content, and files with the same stitches, such as a design in two "
              "formats. Changes nothing.");
}

QList<QCommandLineOption> DuplicatesCommand::options() const
{
    return {{QStringLiteral("json"), tr("Print one JSON object per group, a line each.")}};
}

int DuplicatesCommand::run(const CommandLine &line) const
{
    line.expectAtMost(0);
    CatalogueChoice::expectCatalogue();
    ProjectController controller;
    controller.loadProject();
    const Files files = controller.project()->files();
    const DuplicateResult result = find(files);
    if (result.cancelled)
        return SignalReceived + Interrupt::received();
    const bool written = line.isSet("json") ? writeJson(result, files) : writeText(result, files);
    if (result.unread > 0)
        Console::reportError(tr("%n design(s) could not be compared; they are missing, damaged, "
                                "empty or have changed since the last scan.",
                                nullptr, result.unread));
    return written ? Success : Failure;
}

/** Reads on other threads, so that this one can show how far they are. */
DuplicateResult DuplicatesCommand::find(const Files &files)
{
    DuplicateFinder finder(candidatesOf(files));
    ConsoleProgress progress;
    Interrupt::install();
    auto result = std::async(std::launch::async, [&finder] { return finder.run(); });
    int count = 0;
    int told = 0;
    while (result.wait_for(ProgressInterval) != std::future_status::ready) {
        if (finder.fileCount() != count) {
            count = finder.fileCount();
            progress.setSteps(count);
            told = 0;
        }
        for (const int read = finder.filesRead(); told < read; ++told)
            progress.proceed(tr("Comparing designs"));
        if (progress.abortState() != 0)
            finder.cancel();
    }
    progress.clear();
    return result.get();
}

bool DuplicatesCommand::writeJson(const DuplicateResult &result, const Files &files)
{
    StandardOutput output;
    JsonWriter json(output);
    for (const DuplicateGroup &group : result.groups) {
        json.beginObject();
        json.member("likeness", keyOf(group.likeness));
        json.key("files");
        json.beginArray();
        for (int member : group.members) {
            const IFile &file = *files.at(member);
            json.beginObject();
            json.member("file", file.absoluteFilePath());
            json.member("name", file.name());
            json.member("md5", QString::fromLatin1(file.contentHash().toHex()));
            json.key("tags");
            json.beginArray();
            const QStringList tags = file.tags();
            for (const QString &tag : tags)
                json.value(tag);
            json.endArray();
            json.member("notes", file.notes());
            json.member("favorite", file.isFavorite());
            json.endObject();
        }
        json.endArray();
        json.endObject();
        json.endLine();
    }
    return output.flush();
}

bool DuplicatesCommand::writeText(const DuplicateResult &result, const Files &files)
{
    StandardOutput output;
    for (const DuplicateGroup &group : result.groups) {
        output.writeLine(textOf(group.likeness));
        for (int member : group.members)
            output.writeLine(QStringLiteral("  ") +
                             Console::printable(files.at(member)->absoluteFilePath()));
    }
    output.writeRemark(tr("%n group(s)", nullptr, result.groups.size()));
    return output.flush();
}
