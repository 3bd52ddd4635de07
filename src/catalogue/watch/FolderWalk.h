#pragma once

#include <atomic>
#include <QByteArray>
#include <QList>

class WatchTable;

/**
 * Has folders watched, from the upper ones down, for as long as there is room. It asks the
 * disk for all of them, and links are followed as a scan does it.
 */
class FolderWalk
{
public:
    /**
     * @param room how many folders may be added; those furthest down are left out
     * @param abandoned ends the walk when it becomes true
     */
    FolderWalk(WatchTable &table, int room, const std::atomic<bool> &abandoned);

    /** Walks through @p folder and those below it. @return whether there is a design in one */
    bool run(const QByteArray &folder);

    /** Whether a scan would read a file of this name. */
    static bool isDesign(const QByteArray &name);

    /** Hidden files and folders are not the user's designs. */
    static bool isHidden(const QByteArray &name) { return name.startsWith('.'); }

private:
    void look(const QByteArray &folder);

    WatchTable &m_table;
    int m_room;
    const std::atomic<bool> &m_abandoned;
    QList<QByteArray> m_next;
    bool m_hasDesigns = false;
};
