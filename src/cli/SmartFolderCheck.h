#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class Project;

/**
 * Tells smart folders that cannot be trusted to show all they hold: a drive that is not
 * plugged in looks like a folder whose designs were all deleted.
 */
class SmartFolderCheck
{
    Q_DECLARE_TR_FUNCTIONS(SmartFolderCheck)

public:
    /** @throws CommandError of the status FolderMissing that names each such folder */
    static void expectAll(const Project &project);

private:
    static QString problemOf(const QString &folder, const QStringList &knownDesigns);
};
