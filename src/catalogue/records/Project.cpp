#include "catalogue/records/Project.h"

#include "catalogue/records/DataModelReader.h"
#include "catalogue/records/DataModelWriter.h"
#include "catalogue/records/LocaleAwareFunctions.h"

Project::Project()
    : GProject(QStringLiteral("hoopline_organizer"), {}),
      m_smartFolders(
          addProperty(new PropertyStringList(this, QStringLiteral("smart_folders"), {}))),
      m_files(addProperty(new PropertyListT<File>(this, QStringLiteral("files"), true))),
      m_allTags(addProperty(new PropertyStringList(this, QStringLiteral("all_tags"), {})))
{
}

void Project::load(const QString &path)
{
    DataModelReader().readFromFile(this, path);
}

void Project::save(const QString &path)
{
    DataModelWriter().writeToFile(this, path);
}

void Project::clear()
{
    m_smartFolders->setValueWithoutUndoAndAnnounceChange({});
    m_allTags->setValueWithoutUndoAndAnnounceChange({});
    m_files->setValueWithoutUndoAndAnnounceChange({});
    undoStack()->clear();
}

void Project::setSmartFolders(const QStringList &folders, const QString &undoText)
{
    m_smartFolders->setValue(folders, undoText);
}

QList<QSharedPointer<IFile>> Project::files() const
{
    QList<QSharedPointer<IFile>> files;
    files.reserve(m_files->count());
    for (int i = 0; i < m_files->count(); ++i)
        files.append(m_files->sharedAt(i));
    return files;
}

void Project::setFiles(const QList<QSharedPointer<IFile>> &files)
{
    QList<QSharedPointer<File>> list;
    list.reserve(files.count());
    for (const auto &file : files) {
        if (const auto record = qSharedPointerDynamicCast<File>(file))
            list.append(record);
    }
    m_files->replaceListWithoutUndo(list);
}

void Project::setAllTags(const QStringList &tags)
{
    QStringList sorted = tags;
    LocaleAwareFunctions::sort(sorted);
    m_allTags->setValueWithoutUndoAndAnnounceChange(sorted);
}

void Project::addTag(const QString &tag)
{
    QStringList tags = allTags();
    if (tags.contains(tag))
        return;
    tags.append(tag);
    LocaleAwareFunctions::sort(tags);
    m_allTags->setValue(tags, QStringLiteral("new tag"));
}

void Project::removeTag(const QString &tag)
{
    QStringList tags = allTags();
    tags.removeOne(tag);
    m_allTags->setValue(tags, QStringLiteral("remove tag"));
}
