#pragma once

#include "catalogue/records/Project.h"
#include <functional>
#include <QCoreApplication>
#include <QSet>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

/**
 * Keeps the tags of the files and the project's global list of tags consistent
 * where an operation touches both. Made on the stack where it is needed. Tags
 * are case-sensitive. Main thread only.
 */
class TagController
{
    Q_DECLARE_TR_FUNCTIONS(TagController)

public:
    explicit TagController(const QSharedPointer<Project> &project);

    QSet<QString> allTags() const;
    /** The tags that any file bears. */
    QSet<QString> usedTags() const;
    /** Tags of the global list that no file bears, sorted. */
    QStringList unusedTags() const;
    /** Names of the designs with @p tag, sorted. */
    QStringList filesWithTag(const QString &tag) const;

    void addTag(const QString &tag);

    /**
     * In the global list and in all files; the files' part is one undo step. A
     * file that bears @p newName already ends up with it twice.
     */
    void renameTag(const QString &oldName, const QString &newName);
    /** From the global list and from all files; the files' part is one undo step. */
    void removeTag(const QString &tag);

    void addFileTagsToGlobalList();
    /** An edit like any other: one undo step, unless all tags are used. */
    void removeUnusedTagsFromGlobalList();

    /**
     * Replaces the tags of every file by the words of its path, with its suffix
     * (and the suffix's dot) as one of them, and the global list by these tags.
     */
    void createFakeTags();

private:
    using Edit = std::function<QStringList(QStringList)>;
    void editTagsEverywhere(const Edit &edit);

    QSharedPointer<Project> m_project;
};
