#pragma once

#include <memory>
#include <QCommandLineOption>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <vector>

class CommandLine;

/**
 * One subcommand: what usage and help tell about it, and what it does. All texts are
 * translated.
 */
class Command
{
    Q_DECLARE_TR_FUNCTIONS(Command)

public:
    virtual ~Command() = default;

    /** What stands behind the program's name; never translated. */
    virtual QString name() const = 0;
    /** One line for the list of commands. */
    virtual QString summary() const = 0;
    /** What stands behind the name in the usage, such as "[options] FILE...". */
    virtual QString arguments() const = 0;
    virtual QString description() const = 0;
    /** What the first argument must be one of; empty when it can be anything. */
    virtual QStringList verbs() const { return {}; }
    /**
     * Without those that every command has, or every one that uses the catalogue. An option
     * with a value can be given once.
     */
    virtual QList<QCommandLineOption> options() const { return {}; }

    /** Whether the user can choose the catalogue that it works on. */
    virtual bool usesCatalogue() const { return false; }
    /** Whether it may write settings and the catalogue; the others leave no trace. */
    virtual bool writes() const { return false; }

    /**
     * @return the exit status of the process
     * @throws CommandError to end with a status of its own, Error to fail
     */
    virtual int run(const CommandLine &line) const = 0;

    QString usage() const;
    /** Those of the command itself, and the choice of the catalogue. */
    QList<QCommandLineOption> allOptions() const;
    /** @throws UsageError when @p verb is none of the command's verbs */
    void expectVerb(const QString &verb) const;
};

using Commands = std::vector<std::unique_ptr<Command>>;

/** All there are, in the order in which people meet them. */
Commands allCommands();

/** @p message, and behind it the one of @p words that @p word was perhaps meant to be. */
QString withSuggestion(const QString &message, const QString &word, const QStringList &words);
