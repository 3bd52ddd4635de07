#include "cli/CommandLine.h"

#include "cli/Command.h"
#include "cli/CommandError.h"
#include "cli/Console.h"

CommandLine::CommandLine(const QString &usage, const QString &description,
                         const QList<QCommandLineOption> &options)
    : m_usage(usageLine(usage)), m_options(options)
{
    m_parser.setApplicationDescription(description);
    m_parser.addOptions(options);
    // The parser's own help option brings one for options of Qt along, which have no use here.
    m_parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, tr("Print this help.")});
    m_parser.addOption({{QStringLiteral("V"), QStringLiteral("v"), QStringLiteral("version")},
                        tr("Print the version.")});
}

void CommandLine::parse(const QStringList &arguments)
{
    if (!m_parser.parse(QStringList(QStringLiteral("hoopline-cli")) + arguments))
        throw UsageError(parsingError());
    if (!isAnswer())
        refuseRepetition();
}

QString CommandLine::parsingError() const
{
    const QStringList unknown = m_parser.unknownOptionNames();
    if (unknown.isEmpty())
        return m_parser.errorText();
    QStringList names{QStringLiteral("help"), QStringLiteral("version")};
    for (const QCommandLineOption &option : m_options)
        names += option.names();
    return withSuggestion(m_parser.errorText(), unknown.constFirst(), names);
}

void CommandLine::refuseRepetition() const
{
    for (const QCommandLineOption &option : m_options) {
        const bool takesValue = !option.valueName().isEmpty();
        if (takesValue && m_parser.values(option).size() > 1 && m_parser.isSet(option))
            throw UsageError(
                tr("The option --%1 can be given only once.").arg(option.names().constLast()));
    }
}

void CommandLine::expectAtMost(int count) const
{
    const QStringList arguments = positionalArguments();
    if (arguments.size() > count)
        throw UsageError(tr("Unexpected argument '%1'.").arg(arguments.at(count)));
}

int CommandLine::answer() const
{
    StandardOutput output;
    if (isSet("help"))
        output.write(helpText().toUtf8());
    else
        output.writeLine(
            QStringLiteral("hoopline-cli %1").arg(QCoreApplication::applicationVersion()));
    return output.flush() ? Success : Failure;
}

QString CommandLine::usageLine(const QString &usage)
{
    return tr("Usage: %1").arg(usage);
}

QString CommandLine::helpText() const
{
    // The parser knows only the program's path, not the name of the subcommand.
    const QString text = m_parser.helpText();
    return m_usage + text.mid(text.indexOf(QLatin1Char('\n')));
}
