#pragma once

#include "online/AvailableUpdate.h"

#include <QByteArray>

/** What a feed of releases tells. */
struct UpdateFeed
{
    enum Problem { NoProblem, NoXml, NotRss, NoChannel };

    Problem problem = NoProblem;
    /** The release of the highest version; the own version alone when none is higher. */
    AvailableUpdate newest;

    /** Reads a feed, in bounded time. Any thread. */
    static UpdateFeed read(const QByteArray &data, const QString &ownVersion);
};
