// The conditions about what is counted and measured: stitches, colours, extents and dates.

#include "base/Error.h"
#include "catalogue/query/Comparison.h"
#include "catalogue/query/Conditions.h"
#include "catalogue/query/DesignFacts.h"
#include "catalogue/query/Literals.h"

namespace {

Interval countInterval(const QString &value)
{
    return Comparison::parse(value).interval(&Literals::count);
}

/** A unit at the end of a range holds for its beginning, too. */
Interval lengthInterval(const QString &value)
{
    Comparison comparison = Comparison::parse(value);
    if (comparison.op == Comparison::Range && !comparison.first.isEmpty() &&
        Literals::unitOf(comparison.first).isEmpty())
        comparison.first += Literals::unitOf(comparison.second);
    return comparison.interval(&Literals::length);
}

/** Ages count backwards: what is less than a week old lies behind the day a week ago. */
Interval ageInterval(const Comparison &comparison, const QDateTime &now)
{
    const double time = Literals::timeBefore(now, comparison.first);
    const bool older =
        comparison.op == Comparison::Greater || comparison.op == Comparison::GreaterOrEqual;
    const Comparison behind{older ? Comparison::LessOrEqual : Comparison::GreaterOrEqual,
                            comparison.first, QString()};
    return behind.interval([time](const QString &) { return Literal{time, time}; });
}

bool fitsInto(const QSizeF &size, double width, double height)
{
    return size.width() <= width && size.height() <= height;
}

} // namespace

Condition Conditions::stitches(const QString &value, const QDateTime &)
{
    const Interval allowed = countInterval(value);
    return [allowed](const IFile &file, const DuplicateIndex &) {
        return allowed.contains(file.stitchCount()) && DesignFacts::areKnown(file);
    };
}

Condition Conditions::colors(const QString &value, const QDateTime &)
{
    const Interval allowed = countInterval(value);
    return [allowed](const IFile &file, const DuplicateIndex &) {
        return allowed.contains(file.threadsProp()->count()) && DesignFacts::areKnown(file);
    };
}

Condition Conditions::width(const QString &value, const QDateTime &)
{
    const Interval allowed = lengthInterval(value);
    return [allowed](const IFile &file, const DuplicateIndex &) {
        const double width = file.designSize().width();
        return width >= 0 && allowed.contains(width);
    };
}

Condition Conditions::height(const QString &value, const QDateTime &)
{
    const Interval allowed = lengthInterval(value);
    return [allowed](const IFile &file, const DuplicateIndex &) {
        const double height = file.designSize().height();
        return height >= 0 && allowed.contains(height);
    };
}

Condition Conditions::fits(const QString &value, const QDateTime &)
{
    const QSizeF hoop = Literals::size(value);
    return [hoop](const IFile &file, const DuplicateIndex &) {
        const QSizeF size = file.designSize();
        return size.width() >= 0 && size.height() >= 0 &&
               (fitsInto(size, hoop.width(), hoop.height()) ||
                fitsInto(size, hoop.height(), hoop.width()));
    };
}

Condition Conditions::date(const QString &value, const QDateTime &now)
{
    const Comparison comparison = Comparison::parse(value);
    const bool isAge = comparison.op != Comparison::Range && Literals::isAge(comparison.first);
    const Interval allowed =
        isAge ? ageInterval(comparison, now) : comparison.interval(&Literals::day);
    return [allowed](const IFile &file, const DuplicateIndex &) {
        const unsigned int seconds = file.modificationDate();
        return seconds > 0 && allowed.contains(seconds);
    };
}
