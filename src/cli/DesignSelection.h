#pragma once

#include "catalogue/records/IFile.h"
#include <QCommandLineOption>
#include <QCoreApplication>
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

class CommandLine;
class ProjectController;

/**
 * The designs of the catalogue that a command works on: those that the user names, those
 * whose names come from standard input, or those that match a search.
 */
class DesignSelection
{
    Q_DECLARE_TR_FUNCTIONS(DesignSelection)

public:
    using Files = QList<QSharedPointer<IFile>>;
    enum Default { Nothing, AllDesigns }; ///< where the user names none

    static QList<QCommandLineOption> options();

    /**
     * Reads standard input when the user says so.
     * @param names those of files, or a dash alone
     * @throws UsageError or Error
     */
    DesignSelection(const CommandLine &line, const QStringList &names, Default whenNone);

    /** Whether the user names the designs; absolute names, in his order. */
    bool isByName() const { return m_byName; }
    const QStringList &paths() const { return m_paths; }

    /** Tells each name that is not in the catalogue. @throws Error when there is any */
    Files from(const ProjectController &controller) const;

    /** Tells what is odd about the search. @throws UsageError when it is wrong */
    static void expectRightQuery(const QString &query);

private:
    Files named(const ProjectController &controller) const;

    bool m_byName;
    QStringList m_paths;
    QString m_query;
};
