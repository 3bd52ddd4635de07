#pragma once

#include "catalogue/backups/BackupName.h"

#include <QVector>

/** Which backups have had their time. */
namespace BackupRetention {

/**
 * Those of @p names, in whatever order, that are to be removed. Of the backups of days, the
 * newest of each of the last seven days, four weeks (from Monday on) and twelve months in
 * which there is any stay: nobody loses all for having been away for a year. Of the others
 * the last twenty stay. What bears a date after @p today stays, and counts for nothing.
 */
QVector<BackupName> outdated(QVector<BackupName> names, const QDate &today);

} // namespace BackupRetention
