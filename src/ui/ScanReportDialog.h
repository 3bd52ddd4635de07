#pragma once

#include <QDialog>

class QTreeWidget;
class QTreeWidgetItem;
struct ScanReport;

/** Lists what a scan did, in a section for each kind; a file can be shown in its folder. */
class ScanReportDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param report read here only */
    ScanReportDialog(const ScanReport &report, QWidget *parent);

private:
    void fill(const ScanReport &report);
    QTreeWidgetItem *addSection(const QString &title, int count);
    void addSection(const QString &title, const QStringList &paths);
    void copyAll() const;

    QTreeWidget *m_list;
};
