#pragma once

#include <memory>
#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <vector>

class CommandLine;

/**
 * One subcommand: what usage and help tell about it, and what it does. All texts are
 * translated.
 */
class Command
{
public:
    virtual ~Command() = default;

    /** What stands behind the program's name; never translated. */
    virtual QString name() const = 0;
    /** One line for the list of commands. */
    virtual QString summary() const = 0;
    /** What stands behind the name in the usage, such as "[options] FILE...". */
    virtual QString arguments() const = 0;
    virtual QString description() const = 0;
    /** Without those that every command has. An option with a value can be given once. */
    virtual QList<QCommandLineOption> options() const { return {}; }

    /** Whether it may write settings and the catalogue; the others leave no trace. */
    virtual bool writes() const { return false; }

    /**
     * @return the exit status of the process
     * @throws CommandError to end with a status of its own, Error to fail
     */
    virtual int run(const CommandLine &line) const = 0;

    QString usage() const;
};

using Commands = std::vector<std::unique_ptr<Command>>;

/** All there are, in the order in which people meet them. */
Commands allCommands();
