#pragma once

#include "catalogue/duplicates/DuplicateGroup.h"

#include <functional>
#include <QCoreApplication>
#include <QStringList>

/** Gets duplicates out of the way, into the trash of the desktop. Nothing is ever deleted. */
class DuplicateCleaner
{
    Q_DECLARE_TR_FUNCTIONS(DuplicateCleaner)

public:
    struct Outcome
    {
        QStringList moved;
        QStringList failures; ///< a path and why it stayed, for the user, a line each
        /** Where a file of @c moved lies now; empty where the system doesn't tell. */
        QStringList inTrash;
    };

    /**
     * Moves @p others to the trash. A file stays where it is when it is not the one that the
     * catalogue knows, when it is @p kept itself by another path, and all of them when
     * @p kept is not there as it should be. May take long; any thread; throws nothing of its
     * own. @param stops asked before each file
     */
    static Outcome moveToTrash(const DuplicateCandidate &kept,
                               const QVector<DuplicateCandidate> &others,
                               const std::function<bool()> &stops);

private:
    static void moveOne(const DuplicateCandidate &kept, const DuplicateCandidate &other,
                        Outcome &outcome);
};
