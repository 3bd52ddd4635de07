#pragma once

#include <QCoreApplication>
#include <QString>

/** What became of a transfer; a value. */
struct TransferResult
{
    Q_DECLARE_TR_FUNCTIONS(TransferResult)

public:
    enum Reason {
        None,
        NoSpace,
        FolderFull,     ///< the top folder of an old FAT drive holds only so many names
        NotWritable,    ///< write-protected, or not for this user
        NameNotAllowed, ///< on a FAT file system
        SourceGone,
        SourceUnreadable,
        DriveGone,
        Other
    };

    int total = 0;  ///< files that were to be copied
    int copied = 0; ///< of these, those that were
    /** Of these, those that gave way to a later one of the same name. */
    int replacedByLater = 0;
    QString failedName; ///< the file that could not be copied; empty when all went well
    Reason reason = None;
    QString systemText; ///< the system's own words, where it has given some

    bool hasFailed() const { return reason != None; }

    /** The reason in words for the user; empty when all went well. */
    QString reasonText() const;
};
