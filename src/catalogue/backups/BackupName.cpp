#include "catalogue/backups/BackupName.h"

#include <QRegularExpression>
#include <tuple>

namespace {

const QString DateFormat = QStringLiteral("yyyy-MM-dd");
const QString TimeFormat = QStringLiteral("HHmmss");

} // namespace

std::optional<BackupName> BackupName::parse(const QString &fileName)
{
    static const QRegularExpression form(
        QStringLiteral("^hoopline-organizer-([0-9]{4}-[0-9]{2}-[0-9]{2})"
                       "(?:-([0-9]{6})(?:-([0-9]{1,4}))?)?\\.xml\\.gz$"));
    const QRegularExpressionMatch match = form.match(fileName);
    if (!match.hasMatch())
        return std::nullopt;
    BackupName name{QDate::fromString(match.captured(1), DateFormat), QTime(), 1};
    if (!match.captured(2).isEmpty())
        name.time = QTime::fromString(match.captured(2), TimeFormat);
    if (!match.captured(3).isEmpty())
        name.number = match.captured(3).toInt();
    const bool valid = name.date.isValid() && name.time.isValid() != match.captured(2).isEmpty();
    return valid ? std::optional(name) : std::nullopt;
}

QString BackupName::toString() const
{
    QString text = QStringLiteral("hoopline-organizer-") + date.toString(DateFormat);
    if (!isOfDay())
        text += QLatin1Char('-') + time.toString(TimeFormat);
    if (number > 1)
        text += QLatin1Char('-') + QString::number(number);
    return text + QStringLiteral(".xml.gz");
}

bool BackupName::operator<(const BackupName &other) const
{
    return std::tie(date, time, number) < std::tie(other.date, other.time, other.number);
}

bool BackupName::operator==(const BackupName &other) const
{
    return std::tie(date, time, number) == std::tie(other.date, other.time, other.number);
}
