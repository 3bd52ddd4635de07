#include "catalogue/backups/BackupRetention.h"

#include <algorithm>

namespace {

constexpr int Days = 7;
constexpr int Weeks = 4;
constexpr int Months = 12;
constexpr int Moments = 20;

/** Lets through the newest of each of a number of periods, when asked from the newest on. */
class Periods
{
public:
    explicit Periods(int number) : m_left(number) {}

    bool isNewestOf(const QDate &periodStart)
    {
        if (m_left == 0 || periodStart == m_last)
            return false;
        m_last = periodStart;
        --m_left;
        return true;
    }

private:
    QDate m_last;
    int m_left;
};

QDate monday(const QDate &date)
{
    return date.addDays(1 - date.dayOfWeek());
}

QDate firstOfMonth(const QDate &date)
{
    return QDate(date.year(), date.month(), 1);
}

} // namespace

QVector<BackupName> BackupRetention::outdated(QVector<BackupName> names, const QDate &today)
{
    std::sort(names.begin(), names.end(), [](const auto &a, const auto &b) { return b < a; });
    Periods days(Days);
    Periods weeks(Weeks);
    Periods months(Months);
    int moments = Moments;
    QVector<BackupName> result;
    for (const BackupName &name : std::as_const(names)) {
        if (name.date > today)
            continue;
        bool stays = false;
        if (name.isOfDay()) {
            // Each of the three has to hear of it.
            stays |= days.isNewestOf(name.date);
            stays |= weeks.isNewestOf(monday(name.date));
            stays |= months.isNewestOf(firstOfMonth(name.date));
        } else {
            stays = moments-- > 0;
        }
        if (!stays)
            result.append(name);
    }
    return result;
}
