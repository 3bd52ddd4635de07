#pragma once

/** What one synchronisation did, in files. */
struct SyncCounts
{
    int reconnected = 0; ///< moved or renamed, found again by content
    int removed = 0;
    int added = 0;
    int updated = 0;
    int unreadable = 0; ///< looked into, but no design could be made of it
    int unreached = 0;  ///< of those added: not looked into, since the user stopped the run

    /** How many records the run touched; unreadable files are counted by what was done with them.
     */
    int changed() const { return reconnected + removed + added + updated; }
};
