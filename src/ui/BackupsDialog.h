#pragma once

#include "base/threads/OrderedWorkers.h"
#include "catalogue/backups/BackupFolder.h"
#include "catalogue/backups/BackupSummary.h"

#include <memory>
#include <optional>
#include <QDialog>
#include <QTimer>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/**
 * Lists the backups of the catalogue, the newest first, with what is in them: counted on
 * other threads and filled in one after the other. Accepted when one is to be restored.
 */
class BackupsDialog : public QDialog
{
    Q_OBJECT

public:
    /** @throws Error when the disk does not tell which backups there are */
    BackupsDialog(const BackupFolder &backups, QWidget *parent);
    ~BackupsDialog() override;

    /** The file that was chosen; valid once the dialog was accepted. */
    QString chosen() const { return m_chosen; }

    /** What people call a backup: its day, and the time at which it gave way if it did. */
    static QString title(const BackupName &name);
    QString chosenTitle() const { return m_chosenTitle; }

private:
    /** One backup to be looked into. */
    struct Job
    {
        QString path;
        qint64 size; ///< bytes, compressed
        qint64 memoryNeed() const;
    };
    struct Result
    {
        std::optional<BackupSummary> summary; ///< none for a damaged one
        qint64 memoryNeed() const { return qint64(sizeof *this); }
    };

    void createList();
    void createButtons();
    void fill();
    void count();
    void takeCounted();
    void show(QTreeWidgetItem *item, const Result &result);
    void updateButtons();
    void restore();
    static Result look(const Job &job, const IAbortCheck &abort);

    QVector<BackupFolder::Entry> m_entries;
    QString m_folder;
    QTreeWidget *m_list;
    QPushButton *m_restore = nullptr;
    std::unique_ptr<OrderedWorkers<Job, Result>> m_workers;
    int m_counted = 0;
    QTimer m_timer;
    QString m_chosen;
    QString m_chosenTitle;
};
