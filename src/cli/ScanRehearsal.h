#pragma once

#include "catalogue/sync/ProjectController.h"
#include "cli/ScanOutput.h"
#include <QCoreApplication>
#include <QMap>
#include <QMultiHash>
#include <QStringList>

/** Tells what a scan would do, and changes nothing. */
class ScanRehearsal
{
    Q_DECLARE_TR_FUNCTIONS(ScanRehearsal)

public:
    /**
     * @param folders that the scan would add, by absolute path
     * @param asJson whether programs are told rather than people
     */
    ScanRehearsal(const QStringList &folders, bool asJson);

    /**
     * @param prune whether folders that are missing would be no obstacle
     * @return the exit status of the process
     * @throws CommandError where the scan would refuse
     */
    int run(bool prune);

private:
    using File = QSharedPointer<IFile>;

    void loadCatalogue();
    QStringList designsOnDisk() const;
    void judge(const QString &path, const char *what, int &count);
    bool isUnchanged(const IFile &file) const;
    File takeVanishedTwin(const QString &path);

    const QStringList m_folders;
    ProjectController m_controller;
    QMap<QString, File> m_vanished; ///< by path; all that are known, until they are met
    QMultiHash<int, File> m_vanishedBySize;
    SyncCounts m_counts;
    ScanOutput m_output;
};
