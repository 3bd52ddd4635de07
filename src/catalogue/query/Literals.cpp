#include "catalogue/query/Literals.h"

#include "base/Error.h"

#include <QRegularExpression>

namespace {

constexpr double MillimetresPerInch = 25.4;
constexpr double MillimetresPerCentimetre = 10;

struct Unit
{
    double millimetres;
    /** Half of the last digit that sizes are shown with. */
    double rounding;
};

Unit unitNamed(const QString &name)
{
    if (name.isEmpty() || name.compare(QLatin1String("mm"), Qt::CaseInsensitive) == 0)
        return {1, 0.5};
    if (name.compare(QLatin1String("cm"), Qt::CaseInsensitive) == 0)
        return {MillimetresPerCentimetre, 0.5};
    return {MillimetresPerInch, 0.05 * MillimetresPerInch};
}

/** A number, then perhaps a unit: millimetres, centimetres or inches. */
QRegularExpressionMatch matchLength(const QString &text)
{
    static const QRegularExpression form(
        QString::fromUtf8("^([0-9]{1,6}(?:[.,][0-9]{1,6})?) ?(mm|cm|in|inch|\"|\u2033|\u201d)?$"),
        QRegularExpression::CaseInsensitiveOption);
    return form.match(text);
}

double numberOf(QString text)
{
    return text.replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
}

} // namespace

Literal Literals::count(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(
        "^(?:[0-9]{1,9}|[0-9]{1,3}(?:\\.[0-9]{3}){1,2}|[0-9]{1,3}(?:,[0-9]{3}){1,2})$"));
    if (!form.match(text).hasMatch())
        throw Error(tr("'%1' is no whole number").arg(text));
    QString digits = text;
    const double value = digits.remove(QLatin1Char('.')).remove(QLatin1Char(',')).toDouble();
    return {value, value};
}

Literal Literals::length(const QString &text)
{
    const auto match = matchLength(text);
    if (!match.hasMatch())
        throw Error(tr("'%1' is no length such as 100, 12.5cm or 4in").arg(text));
    const Unit unit = unitNamed(match.captured(2));
    const double value = numberOf(match.captured(1)) * unit.millimetres;
    return {value, value, unit.rounding};
}

QString Literals::unitOf(const QString &text)
{
    return matchLength(text).captured(2);
}

QSizeF Literals::size(const QString &text)
{
    static const QRegularExpression times(QString::fromUtf8(" ?[xX*\u00d7] ?"));
    const QStringList sides = text.split(times);
    if (sides.size() != 2)
        throw Error(tr("'%1' is no size such as 130x180 or 5x7in").arg(text));
    const QString unit = unitOf(sides.at(0)).isEmpty() ? unitOf(sides.at(1)) : QString();
    return {length(sides.at(0) + unit).first, length(sides.at(1)).first};
}

Literal Literals::day(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^([0-9]{4})(?:-([0-9]{1,2})(?:-([0-9]{1,2}))?)?$"));
    const auto match = form.match(text);
    const bool hasMonth = !match.captured(2).isEmpty();
    const bool hasDay = !match.captured(3).isEmpty();
    const QDate first(match.captured(1).toInt(), hasMonth ? match.captured(2).toInt() : 1,
                      hasDay ? match.captured(3).toInt() : 1);
    if (!match.hasMatch() || !first.isValid())
        throw Error(tr("'%1' is no date such as 2024, 2024-05 or 2024-05-31").arg(text));
    const QDate next = hasDay     ? first.addDays(1)
                       : hasMonth ? first.addMonths(1)
                                  : first.addYears(1);
    return {double(first.startOfDay().toSecsSinceEpoch()),
            double(next.startOfDay().toSecsSinceEpoch() - 1)};
}

static QRegularExpressionMatch matchAge(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,4})([dwmy])$"),
                                         QRegularExpression::CaseInsensitiveOption);
    return form.match(text);
}

bool Literals::isAge(const QString &text)
{
    return matchAge(text).hasMatch();
}

double Literals::timeBefore(const QDateTime &now, const QString &age)
{
    const auto match = matchAge(age);
    const int count = match.captured(1).toInt();
    QDateTime time = now;
    switch (match.captured(2).toLower().at(0).toLatin1()) {
    case 'd':
        time = now.addDays(-count);
        break;
    case 'w':
        time = now.addDays(-7 * qint64(count));
        break;
    case 'm':
        time = now.addMonths(-count);
        break;
    default:
        time = now.addYears(-count);
        break;
    }
    return double(time.toSecsSinceEpoch());
}
