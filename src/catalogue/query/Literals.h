#pragma once

#include "catalogue/query/Comparison.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QSizeF>

/** Reads the numbers, lengths and days of a query. Each throws Error for what it can't read. */
class Literals
{
    Q_DECLARE_TR_FUNCTIONS(Query)

public:
    /** A whole number, its thousands perhaps set apart: "10000", "10.000" or "10,000". */
    static Literal count(const QString &text);

    /**
     * Millimetres of a length such as "100", "12.5cm", "4,5in" or "4\"". What equals it is
     * shown by the same number, which is rounded to whole millimetres or tenths of an inch.
     */
    static Literal length(const QString &text);

    /** The unit at the end of a length; empty when there is none. */
    static QString unitOf(const QString &text);

    /** Millimetres of a size such as "130x180" or "5x7in". */
    static QSizeF size(const QString &text);

    /** Seconds since the epoch of "2024", "2024-05" or "2024-05-31", in local time. */
    static Literal day(const QString &text);

    /** Whether @p text is an age: "7d", "2w", "6m" or "1y". */
    static bool isAge(const QString &text);

    /** Seconds since the epoch of the time that was an age before @p now. */
    static double timeBefore(const QDateTime &now, const QString &age);
};
