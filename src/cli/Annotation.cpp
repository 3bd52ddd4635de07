#include "cli/Annotation.h"

#include "catalogue/records/LocaleAwareFunctions.h"

Annotation Annotation::of(const IFile &file)
{
    Annotation annotation;
    annotation.contentHash = file.contentHash();
    annotation.path = file.absoluteFilePath();
    annotation.name = file.name();
    annotation.tags = file.tags();
    annotation.notes = file.notes();
    annotation.favorite = file.isFavorite();
    return annotation;
}

bool Annotation::addTo(IFile &file) const
{
    QStringList allTags = file.tags();
    for (const QString &tag : tags) {
        if (!allTags.contains(tag))
            allTags.append(tag);
    }
    const QString allNotes = joinedNotes(file.notes(), notes);
    const bool newTags = allTags.size() > file.tags().size();
    const bool newNotes = allNotes != file.notes();
    const bool newStar = favorite && !file.isFavorite();
    if (newTags) {
        LocaleAwareFunctions::sort(allTags);
        file.setTags(allTags);
    }
    if (newNotes)
        file.setNotes(allNotes);
    if (newStar)
        file.setFavorite(true);
    return newTags || newNotes || newStar;
}

QString Annotation::joinedNotes(const QString &before, const QString &added)
{
    if (before.isEmpty())
        return added;
    // So that the same import, or command of a script, may come again.
    if (added.isEmpty() || before.contains(added))
        return before;
    return before + QLatin1Char('\n') + added;
}
