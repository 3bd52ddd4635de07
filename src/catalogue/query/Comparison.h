#pragma once

#include <functional>
#include <QCoreApplication>
#include <QString>

/** What a number, length or day as written stands for, in the unit of its field. */
struct Literal
{
    double first = 0; ///< where it begins
    double last = 0;  ///< where it ends: the first for a number, the last second of a month
    double slack = 0; ///< how far what equals it may lie apart from it
};

/** The values that a comparison allows, both ends included. */
struct Interval
{
    double low = 0;
    double high = 0;

    bool contains(double value) const { return value >= low && value <= high; }
};

/** A comparison as it is written: "<10", ">=5", "50..80", "..80" or just "7". */
class Comparison
{
    Q_DECLARE_TR_FUNCTIONS(Query)

public:
    enum Operator { Equal, Less, LessOrEqual, Greater, GreaterOrEqual, Range };

    /** Throws Error when the form is none of these. */
    static Comparison parse(const QString &text);

    /**
     * What the comparison allows, its operands read by @p read, which throws Error for
     * what it can't read. Throws Error also for a range that ends before it begins.
     */
    Interval interval(const std::function<Literal(const QString &)> &read) const;

    Operator op = Equal;
    /** Of a range, one of the two may be empty; otherwise @c first is the operand. */
    QString first;
    QString second;

private:
    Interval range(const std::function<Literal(const QString &)> &read) const;
};
