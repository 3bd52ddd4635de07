#pragma once

#include "catalogue/records/Project.h"

#include <QCoreApplication>
#include <QList>
#include <QSharedPointer>
#include <QStringList>

/** What duplicates mean to the records of the catalogue. Main thread only. */
class DuplicateWords
{
    Q_DECLARE_TR_FUNCTIONS(DuplicateWords)

public:
    using Files = QList<QSharedPointer<IFile>>;

    /**
     * Gives @p kept the tags and the notes of @p others, and the star if one of them has it:
     * one undo step.
     */
    static void join(Project &project, const QSharedPointer<IFile> &kept, const Files &others);

    /**
     * Takes the records of files that have gone out of the catalogue, as a scan does. No edit
     * can be undone afterwards, and there is something to save.
     */
    static void removeRecords(Project &project, const QStringList &paths);

    /** The place in @p files, which are not none, of the one that most is known and said about. */
    static int worthiest(const Files &files);
};
