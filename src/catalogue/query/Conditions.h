#pragma once

#include <functional>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QStringList>

class DuplicateIndex;
class IFile;

/** Whether a design fulfils one condition of a query. */
using Condition = std::function<bool(const IFile &file, const DuplicateIndex &duplicates)>;

/**
 * Makes the condition of each field from the value behind its colon, which is never empty;
 * @p now is what ages count from. Each throws Error when it can't make sense of the value.
 *
 * What isn't known of a design, its size for instance, fulfils no condition.
 */
class Conditions
{
    Q_DECLARE_TR_FUNCTIONS(Query)

public:
    /** How far a thread may be from a colour that is asked for, by CIEDE2000. */
    static constexpr double LargestColorDifference = 10;

    static Condition tag(const QString &value, const QDateTime &now);
    static Condition name(const QString &value, const QDateTime &now);
    static Condition folder(const QString &value, const QDateTime &now);
    static Condition type(const QString &value, const QDateTime &now);
    static Condition thread(const QString &value, const QDateTime &now);
    static Condition state(const QString &value, const QDateTime &now);
    static Condition stitches(const QString &value, const QDateTime &now);
    static Condition colors(const QString &value, const QDateTime &now);
    static Condition width(const QString &value, const QDateTime &now);
    static Condition height(const QString &value, const QDateTime &now);
    static Condition fits(const QString &value, const QDateTime &now);
    static Condition date(const QString &value, const QDateTime &now);
    static Condition color(const QString &value, const QDateTime &now);

    /** The words that state() knows. */
    static QStringList states();
};
