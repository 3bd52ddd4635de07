#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class Project;

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

private:
    static QString problemOf(const QString &folder, const QStringList &knownDesigns);
};
