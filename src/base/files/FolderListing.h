#pragma once

#include "base/files/FoundFiles.h"

#include <optional>
#include <QByteArray>
#include <QString>
#include <QVector>
#include <sys/types.h>
#include <utility>

/**
 * What lies in one folder, sorted by name without regard to case. Costs one look at each
 * entry. Any thread.
 */
class FolderListing
{
public:
    /** Device and inode, which tell whether two folders are one. */
    using Identity = std::pair<dev_t, ino_t>;

    enum Type {
        File,
        Folder,
        Other ///< a device, a pipe, a link that leads nowhere
    };

    /** Links are what they lead to. */
    struct Entry
    {
        /** In composed form where the file system finds the entry by it, else as it is stored. */
        QString name;
        Type type = Other;
        qint64 size = 0;     ///< bytes; of files
        qint64 modified = 0; ///< seconds since the epoch; of files
        Identity identity;   ///< of folders
    };

    /** @param hidden whether names that begin with a dot are listed, "." and ".." among them */
    FolderListing(const QString &dir, bool hidden);

    const QVector<Entry> &entries() const { return m_entries; }

    /** The folder itself when it can't be read, and names that are no text. */
    const QVector<SkippedEntry> &skipped() const { return m_skipped; }

    /** The folder's path as it was given, and the name. */
    QString pathOf(const Entry &entry) const { return m_prefix + entry.name; }

    /**
     * The names of all entries that are no folders, as they are stored, unsorted and
     * without a look at each; empty when the folder can't be read.
     */
    static QVector<QByteArray> fileNames(const QString &dir);

    /** Nothing when there is no folder at @p dir; errno tells why. */
    static std::optional<Identity> identity(const QString &dir);

private:
    void add(int folder, const char *name);
    void composeNames();

    QString m_prefix; ///< the path with a slash at its end
    QVector<Entry> m_entries;
    QVector<SkippedEntry> m_skipped;
};
