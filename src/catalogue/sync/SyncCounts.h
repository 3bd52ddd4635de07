#pragma once

/** What one synchronisation did, in files. */
struct SyncCounts
{
    int reconnected = 0; ///< moved or renamed, found again by content
    int removed = 0;
    int added = 0;
    int updated = 0;
    int unreadable = 0; ///< looked into, but no reader could make a design of it

    /** How many records the run touched; unreadable files are counted by what was done with them.
     */
    int changed() const { return reconnected + removed + added + updated; }
};
