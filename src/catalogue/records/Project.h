#pragma once

#include "catalogue/records/File.h"
#include "catalogue/records/IProject.h"
#include "properties/core/GProject.h"
#include "properties/undo/GUndoStack.h"

/** The catalogue as a document; it gives its records their undo stack. */
class Project : public IProject, public GProject
{
public:
    Project();

    void load(const QString &path) override;
    void save(const QString &path) override;
    void clear() override;

    QStringList smartFolders() const override { return m_smartFolders->value(); }
    void setSmartFolders(const QStringList &folders, const QString &undoText) override;
    PropertyStringList *smartFoldersProp() const { return m_smartFolders; }

    QList<QSharedPointer<IFile>> files() const override;
    void setFiles(const QList<QSharedPointer<IFile>> &files) override;
    PropertyListT<File> *filesProp() const { return m_files; }

    QStringList allTags() const override { return m_allTags->value(); }
    void setAllTags(const QStringList &tags) override;
    void addTag(const QString &tag) override;
    void removeTag(const QString &tag) override;
    PropertyStringList *allTagsProp() const { return m_allTags; }

private:
    PropertyStringList *m_smartFolders;
    PropertyListT<File> *m_files;
    PropertyStringList *m_allTags;
};
