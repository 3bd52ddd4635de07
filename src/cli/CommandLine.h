#pragma once

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/** The command line of one subcommand. */
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine(const QString &usage, const QString &description,
                const QList<QCommandLineOption> &options);

    /**
     * @param arguments what follows the subcommand's name
     * @throws UsageError for an option that is unknown, lacks its value or has two
     */
    void parse(const QStringList &arguments);

    /** Whether the user asked for the help or the version rather than for the command. */
    bool isAnswer() const { return isSet("help") || isSet("version"); }
    /** Prints the help or the version. @return the exit status of the process */
    int answer() const;

    bool isSet(const char *option) const { return m_parser.isSet(QLatin1String(option)); }
    QString value(const char *option) const { return m_parser.value(QLatin1String(option)); }
    QStringList positionalArguments() const { return m_parser.positionalArguments(); }

    /** @throws UsageError when there are more than @p count positional arguments */
    void expectAtMost(int count) const;

    static QString usageLine(const QString &usage);

private:
    QString parsingError() const;
    void refuseRepetition() const;
    QString helpText() const;

    QString m_usage;
    QList<QCommandLineOption> m_options;
    QCommandLineParser m_parser;
};
