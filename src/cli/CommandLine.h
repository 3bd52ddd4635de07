#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

/**
 * The command line of one subcommand. Answers "--help" and "--version", and
 * turns what is wrong into a message and a usage line on standard error.
 */
class CommandLine
{
public:
    /** @param arguments what follows the subcommand's name */
    CommandLine(const QString &usage, const QString &description, const QStringList &arguments);

    void addOption(const QCommandLineOption &option) { m_parser.addOption(option); }

    /**
     * True when the command is to run; otherwise exitStatus() tells how the
     * process is to end.
     */
    bool parse();

    bool isSet(const char *option) const { return m_parser.isSet(QLatin1String(option)); }
    QString value(const char *option) const { return m_parser.value(QLatin1String(option)); }
    QStringList positionalArguments() const { return m_parser.positionalArguments(); }

    /** Reports a wrong command line. Always WrongUsage. */
    int fail(const QString &message) const;

    int exitStatus() const { return m_exitStatus; }

private:
    void answer(const QString &text);
    QString helpText() const;

    QString m_usage;
    QStringList m_arguments;
    QCommandLineParser m_parser;
    int m_exitStatus = 0;
};
