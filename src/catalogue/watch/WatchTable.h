#pragma once

#include <mutex>
#include <QByteArray>
#include <QHash>
#include <QList>

/** What the system told of a folder. Names are as the file system has them. */
struct FolderEvent
{
    enum Kind {
        FileChanged, ///< came, went or was written to its end
        FolderCame,
        FolderWent,
        Moved,   ///< the folder itself is no longer at its place
        Overflow ///< more has happened than the system could note
    };

    Kind kind;
    QByteArray folder; ///< absolute path
    QByteArray name;   ///< of the file or folder in it, where it is about one
};

/**
 * The folders that the system watches for us, each without those below it. Any thread; only
 * add() asks the disk and may be held up by it. Where the system cannot watch, nothing is.
 */
class WatchTable
{
public:
    enum Adding {
        Added,
        /** The folder is watched by another of its names, so a link leads in a circle. */
        KnownElsewhere,
        NoRoom, ///< the system watches no more
        Refused ///< it is no folder, or not for this user
    };

    WatchTable();
    ~WatchTable();

    WatchTable(const WatchTable &) = delete;
    WatchTable &operator=(const WatchTable &) = delete;

    /** Readable when something has happened; -1 where the system cannot watch. */
    int descriptor() const { return m_descriptor; }

    /** @param folder absolute path */
    Adding add(const QByteArray &folder);

    bool isWatched(const QByteArray &folder) const;

    /** Lets go of @p folder and of all below it. */
    void remove(const QByteArray &folder);

    /** What has happened since the last call; does not wait. */
    QList<FolderEvent> takeEvents();

    /** How many folders of its own a program can decently have watched. */
    static int roomForAll();

    /** Whether @p path is @p folder or lies below it, both absolute. */
    static bool isInside(const QByteArray &path, const QByteArray &folder);

private:
    mutable std::mutex m_mutex;
    int m_descriptor = -1;
    QHash<int, QByteArray> m_folders; ///< by the system's number
};
