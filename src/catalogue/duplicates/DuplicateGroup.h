#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/** What of a design the search for duplicates goes by; travels between threads. */
struct DuplicateCandidate
{
    QString path;    ///< absolute
    QByteArray hash; ///< raw MD5 digest of the bytes; empty when it was never read
};

/** Designs that are one and the same, as far as likeness goes. */
struct DuplicateGroup
{
    /** How sure it is, the surest first. */
    enum Likeness {
        SameContent,       ///< byte by byte
        SameStitches,      ///< other bytes, every stitch the same
        NearlySameStitches ///< other bytes, stitches as near as the rounding of two formats
    };

    Likeness likeness = SameContent;
    QVector<int> members; ///< places in the list of candidates, at least two, rising
};

struct DuplicateResult
{
    /** Those of the same content first, each kind by its first member. */
    QVector<DuplicateGroup> groups;
    /** Designs whose stitches could not be compared: missing, damaged or changed on the disk. */
    int unread = 0;
    bool cancelled = false;
};
