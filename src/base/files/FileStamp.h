#pragma once

#include <QString>
#include <QtGlobal>

/**
 * What tells one state of a file from another without reading it. A file that is
 * replaced gets another one even when the bytes are the same. Any thread.
 */
struct FileStamp
{
    qint64 size = -1;   ///< bytes; -1 while there is no file
    qint64 seconds = 0; ///< of the last modification, since the epoch
    qint64 nanoseconds = 0;
    quint64 device = 0;
    quint64 inode = 0;

    /** That of the file which @p path leads to, through links; of none if it can't be told. */
    static FileStamp of(const QString &path);

    /**
     * Whether nothing bears this name. False when that can't be told for now, and for a
     * link that leads nowhere.
     */
    static bool isMissing(const QString &path);

    bool exists() const { return size >= 0; }

    /** Whether both are there and this one was modified later. */
    bool isNewerThan(const FileStamp &other) const;

    bool operator==(const FileStamp &other) const;
    bool operator!=(const FileStamp &other) const { return !(*this == other); }
};
