#include "cli/BackupReport.h"

#include "catalogue/backups/BackupSummary.h"

QString BackupReport::line(const BackupSummary &summary)
{
    return QStringLiteral("designs %1, tagged %2, notes %3, favorites %4")
        .arg(summary.designs)
        .arg(summary.tagged)
        .arg(summary.notes)
        .arg(summary.stars);
}
