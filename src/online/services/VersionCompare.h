#pragma once

#include <QString>

/** Orders version texts by the numbers in them; everything else only separates numbers. */
class VersionCompare
{
public:
    /**
     * 1 when @p a is greater, -1 when @p b is, else 0. With a common beginning the
     * shorter version counts as the greater, so versions that are to be compared
     * should have the same number of parts.
     */
    static int compare(const QString &a, const QString &b);
};
