#include "catalogue/duplicates/DuplicateWords.h"

#include "catalogue/records/IThread.h"
#include "catalogue/records/LocaleAwareFunctions.h"

#include <algorithm>
#include <QSet>
#include <tuple>

namespace {

QString joined(const QString &notes, const QString &more)
{
    if (more.trimmed().isEmpty() || notes.contains(more.trimmed()))
        return notes;
    return notes.trimmed().isEmpty() ? more : notes + QLatin1Char('\n') + more;
}

/** Formats without thread data have lost what cannot be had back. */
bool knowsThreads(const IFile &file)
{
    const auto threads = file.threads();
    return std::any_of(threads.begin(), threads.end(),
                       [](const auto &thread) { return !thread->colorName().isEmpty(); });
}

} // namespace

void DuplicateWords::join(Project &project, const QSharedPointer<IFile> &kept, const Files &others)
{
    QStringList tags = kept->tags();
    QString notes = kept->notes();
    bool favorite = kept->isFavorite();
    for (const QSharedPointer<IFile> &other : others) {
        tags += other->tags();
        notes = joined(notes, other->notes());
        favorite |= other->isFavorite();
    }
    tags.removeDuplicates();
    LocaleAwareFunctions::sort(tags);
    const auto macro = project.undoStack()->createMacroBlock(tr("join duplicates"));
    if (tags.size() != kept->tags().size())
        kept->setTags(tags);
    kept->setNotes(notes);
    kept->setFavorite(favorite);
}

void DuplicateWords::removeRecords(Project &project, const QStringList &paths)
{
    const QSet<QString> gone(paths.begin(), paths.end());
    Files remaining = project.files();
    remaining.erase(
        std::remove_if(remaining.begin(), remaining.end(),
                       [&](const auto &file) { return gone.contains(file->absoluteFilePath()); }),
        remaining.end());
    // The steps hold on to the records that go.
    project.undoStack()->clear();
    project.setFiles(remaining);
    project.undoStack()->resetClean();
}

int DuplicateWords::worthiest(const Files &files)
{
    const auto worth = [](const QSharedPointer<IFile> &file) {
        return std::make_tuple(knowsThreads(*file), file->isFavorite(),
                               file->tags().size() + (file->notes().isEmpty() ? 0 : 1));
    };
    const auto best =
        std::max_element(files.begin(), files.end(),
                         [&](const auto &a, const auto &b) { return worth(a) < worth(b); });
    return int(best - files.begin());
}
