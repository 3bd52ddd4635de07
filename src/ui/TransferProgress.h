#pragma once

#include "drives/TransferJob.h"
#include "ui/ProgressDialog.h"

#include <QCoreApplication>
#include <QStringList>

/**
 * A transfer, shown to the user from its begin to its end: which file of how many, and how
 * much of all. The work is done elsewhere, so that the window lives however slow the drive is.
 */
class TransferProgress
{
    Q_DECLARE_TR_FUNCTIONS(ExportDialog)

public:
    /** @param parent the window that the progress stands before */
    explicit TransferProgress(QWidget *parent);

    /** Copies, see TransferJob; returns when that is over. */
    TransferResult run(const QStringList &sources, const QString &target, quint64 device);

private:
    void show(const QStringList &sources, const TransferJob &job);
    QString detail(const TransferJob::Progress &now, int files) const;

    ProgressDialog m_dialog;
    int m_shown = 0; ///< files
};
