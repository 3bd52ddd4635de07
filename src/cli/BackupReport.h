#pragma once

#include <QCoreApplication>
#include <QString>

struct BackupSummary;

/** What people are told about a copy of the catalogue. */
class BackupReport
{
    Q_DECLARE_TR_FUNCTIONS(BackupReport)

public:
    static QString line(const BackupSummary &summary);
};
