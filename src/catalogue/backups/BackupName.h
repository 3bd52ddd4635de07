#pragma once

#include <optional>
#include <QDate>
#include <QDateTime>
#include <QString>

/**
 * The name of a backup: "hoopline-organizer-2026-11-23.xml.gz" is the catalogue as it was
 * before the first save of that day, "hoopline-organizer-2026-11-23-130049.xml.gz", perhaps
 * with "-2" behind the time, one that had to give way to something else at that moment.
 */
struct BackupName
{
    QDate date;
    QTime time;     ///< of the moment at which it gave way; invalid for that of a day
    int number = 1; ///< tells those of one second from each other

    static BackupName ofDay(const QDate &date) { return {date, QTime(), 1}; }
    static BackupName ofMoment(const QDateTime &moment, int number)
    {
        return {moment.date(), moment.time(), number};
    }
    /** None when a file of that name is no backup. */
    static std::optional<BackupName> parse(const QString &fileName);

    QString toString() const;
    bool isOfDay() const { return !time.isValid(); }

    /** From the oldest to the newest; that of a day comes ahead of its moments. */
    bool operator<(const BackupName &other) const;
    bool operator==(const BackupName &other) const;
};
