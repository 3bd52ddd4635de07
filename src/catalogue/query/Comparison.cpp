#include "catalogue/query/Comparison.h"

#include "base/Error.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <QVector>

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

struct Sign
{
    QString text;
    Comparison::Operator op;
};

/** Each sign before those that it begins with; the last one is that there is none. */
const QVector<Sign> &signs()
{
    static const QVector<Sign> all = {
        {QStringLiteral("<="), Comparison::LessOrEqual},
        {QStringLiteral(">="), Comparison::GreaterOrEqual},
        {QString(QChar(0x2264)), Comparison::LessOrEqual},
        {QString(QChar(0x2265)), Comparison::GreaterOrEqual},
        {QStringLiteral("<"), Comparison::Less},
        {QStringLiteral(">"), Comparison::Greater},
        {QStringLiteral("="), Comparison::Equal},
        {QString(), Comparison::Equal},
    };
    return all;
}

double above(double value)
{
    return std::nextafter(value, Infinity);
}

double below(double value)
{
    return std::nextafter(value, -Infinity);
}

} // namespace

Comparison Comparison::parse(const QString &text)
{
    Comparison comparison;
    const int dots = text.indexOf(QLatin1String(".."));
    if (dots >= 0) {
        comparison.op = Range;
        comparison.first = text.left(dots).trimmed();
        comparison.second = text.mid(dots + 2).trimmed();
        if (comparison.first.isEmpty() && comparison.second.isEmpty())
            throw Error(tr("a range needs at least one end, as in 50..80"));
        return comparison;
    }
    const auto sign = std::find_if(signs().begin(), signs().end(), [&text](const Sign &candidate) {
        return text.startsWith(candidate.text);
    });
    comparison.op = sign->op;
    comparison.first = text.mid(sign->text.length()).trimmed();
    if (comparison.first.isEmpty())
        throw Error(tr("there is nothing behind '%1'").arg(sign->text));
    return comparison;
}

Interval Comparison::interval(const std::function<Literal(const QString &)> &read) const
{
    if (op == Range)
        return range(read);
    const Literal value = read(first);
    switch (op) {
    case Less:
        return {-Infinity, below(value.first)};
    case LessOrEqual:
        return {-Infinity, value.last};
    case Greater:
        return {above(value.last), Infinity};
    case GreaterOrEqual:
        return {value.first, Infinity};
    default:
        return {value.first - value.slack, value.last + value.slack};
    }
}

Interval Comparison::range(const std::function<Literal(const QString &)> &read) const
{
    const double low = first.isEmpty() ? -Infinity : read(first).first;
    const double high = second.isEmpty() ? Infinity : read(second).last;
    if (low > high)
        throw Error(tr("the range begins behind its end"));
    return {low, high};
}
