#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class Project;
struct ScanReport;

/**
 * Tells folders that cannot be trusted to show all they hold: a drive that is not plugged
 * in looks like a folder whose designs were all deleted.
 */
class SmartFolderCheck
{
    Q_DECLARE_TR_FUNCTIONS(SmartFolderCheck)

public:
    /**
     * Names each smart folder that is missing, cannot be listed or has lost all its designs,
     * and each folder of known designs below it that is there but cannot be listed.
     * @throws CommandError of the status FolderMissing when there is any
     */
    static void expectAll(const Project &project);

    /**
     * The same of a scan that has gone through them: a folder that could not be listed just
     * then hides its designs as well. Who reports the scan names it.
     */
    static void expectListed(const ScanReport &report);

private:
    [[noreturn]] static void refuse();
    static QString problemOf(const QString &folder, const QStringList &knownDesigns);
};
