#pragma once

#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

class IFile;

/** The whole catalogue: smart folders, a record per design file, all tags. Main thread only. */
class IProject
{
public:
    /**
     * Replaces the contents by those of a catalogue file; each changed property is
     * announced once, at the end. Throws ErrorDoesNotExist when there is no file,
     * CatalogueUnusableError when it can't be read for now or not by this version,
     * CatalogueDamagedError when it holds no whole catalogue; up to a fault within the
     * records, the project stays as it was.
     */
    virtual void load(const QString &path) = 0;

    /** Replaces the file whole or, throwing Error, not at all. */
    virtual void save(const QString &path) = 0;

    /** Empties the folders, the records and the tags, and the undo stack; not undoable. */
    virtual void clear() = 0;

    /** Absolute paths of the folders that are catalogued; undoable. */
    virtual QStringList smartFolders() const = 0;
    virtual void setSmartFolders(const QStringList &folders, const QString &undoText) = 0;

    /** The records, sorted by path; set without undo, in any order. */
    virtual QList<QSharedPointer<IFile>> files() const = 0;
    virtual void setFiles(const QList<QSharedPointer<IFile>> &files) = 0;

    /** The tags that the user can choose from, sorted; set without undo, in any order. */
    virtual QStringList allTags() const = 0;
    virtual void setAllTags(const QStringList &tags) = 0;

    /** Undoable; a tag that is there isn't added again. */
    virtual void addTag(const QString &tag) = 0;
    virtual void removeTag(const QString &tag) = 0;

    virtual ~IProject() = default;
};
