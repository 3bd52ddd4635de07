#pragma once

#include "cli/Command.h"
#include <QCoreApplication>
#include <QStringList>

/**
 * The program: finds the command, answers "--help" and "--version", and turns whatever
 * is wrong into a message on standard error and an exit status.
 */
class Companion
{
    Q_DECLARE_TR_FUNCTIONS(Companion)

public:
    Companion();

    /**
     * @param arguments without the program's name
     * @return the exit status of the process
     */
    int run(const QStringList &arguments);

private:
    int dispatch(const QStringList &arguments);
    int runCommand(const Command &command, const QStringList &arguments);
    int runWithoutCommand(const QStringList &arguments);
    int help(const QStringList &arguments);
    const Command &find(const QString &name) const;
    QString listOfCommands() const;

    Commands m_commands;
    QString m_usage;
};
