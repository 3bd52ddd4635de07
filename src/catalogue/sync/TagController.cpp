#include "catalogue/sync/TagController.h"

#include "catalogue/records/IFile.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "properties/undo/GUndoStack.h"
#include <algorithm>
#include <QFileInfo>

namespace {

constexpr int ShortestWord = 3;

QStringList wordsOfPath(const QString &path)
{
    QString text = path.toLower();
    const QString suffix = QLatin1Char('.') + QFileInfo(text).suffix();
    text.chop(suffix.size());
    for (QChar &c : text) {
        if (c < QLatin1Char('a') || c > QLatin1Char('z'))
            c = QLatin1Char(' ');
    }
    QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    words.append(suffix);
    LocaleAwareFunctions::sort(words);
    words.removeDuplicates();
    for (int i = words.size() - 1; i >= 0; --i) {
        if (words.at(i).size() < ShortestWord)
            words.removeAt(i);
    }
    return words;
}

} // namespace

TagController::TagController(const QSharedPointer<Project> &project) : m_project(project) {}

QSet<QString> TagController::allTags() const
{
    const QStringList tags = m_project->allTags();
    return QSet<QString>(tags.begin(), tags.end());
}

QSet<QString> TagController::usedTags() const
{
    QSet<QString> used;
    const auto files = m_project->files();
    for (const QSharedPointer<IFile> &file : files) {
        const QStringList tags = file->tags();
        for (const QString &tag : tags)
            used.insert(tag);
    }
    return used;
}

QStringList TagController::unusedTags() const
{
    QStringList unused = (allTags() - usedTags()).values();
    LocaleAwareFunctions::sort(unused);
    return unused;
}

QStringList TagController::filesWithTag(const QString &tag) const
{
    QStringList names;
    const auto files = m_project->files();
    for (const QSharedPointer<IFile> &file : files) {
        if (file->tags().contains(tag))
            names.append(file->name());
    }
    LocaleAwareFunctions::sort(names);
    return names;
}

void TagController::addTag(const QString &tag)
{
    m_project->addTag(tag);
}

void TagController::renameTag(const QString &oldName, const QString &newName)
{
    const auto macro = m_project->undoStack()->createMacroBlock(tr("rename tag"));
    editTagsEverywhere([&](QStringList tags) {
        std::replace(tags.begin(), tags.end(), oldName, newName);
        return tags;
    });
}

void TagController::removeTag(const QString &tag)
{
    const auto macro = m_project->undoStack()->createMacroBlock(tr("remove tag"));
    editTagsEverywhere([&](QStringList tags) {
        tags.removeAll(tag);
        return tags;
    });
}

void TagController::editTagsEverywhere(const Edit &edit)
{
    m_project->setAllTags(edit(m_project->allTags()));
    const auto files = m_project->files();
    for (const QSharedPointer<IFile> &file : files)
        file->setTags(edit(file->tags()));
}

void TagController::addFileTagsToGlobalList()
{
    m_project->setAllTags((allTags() + usedTags()).values());
}

void TagController::removeUnusedTagsFromGlobalList()
{
    QStringList used = (allTags() & usedTags()).values();
    LocaleAwareFunctions::sort(used);
    // Unlike what follows from the files' tags, that the others are gone is known only here.
    m_project->allTagsProp()->setValue(used, tr("remove unused tags"));
}

void TagController::createFakeTags()
{
    const auto macro = m_project->undoStack()->createMacroBlock(tr("auto-create tags"));
    const auto files = m_project->files();
    for (const QSharedPointer<IFile> &file : files)
        file->setTags(wordsOfPath(file->absoluteFilePath()));
    addFileTagsToGlobalList();
    removeUnusedTagsFromGlobalList();
}
