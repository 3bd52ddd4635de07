#include "cli/CommandLine.h"

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include <cstdio>
#include <QCoreApplication>

CommandLine::CommandLine(const QString &usage, const QString &description,
                         const QStringList &arguments)
    : m_usage(QCoreApplication::translate("CommandLine", "Usage: %1").arg(usage)),
      m_arguments(arguments)
{
    m_parser.setApplicationDescription(description);
    m_parser.addHelpOption();
    m_parser.addVersionOption();
}

bool CommandLine::parse()
{
    if (!m_parser.parse(QStringList(QStringLiteral("hoopline-cli")) + m_arguments)) {
        m_exitStatus = fail(m_parser.errorText());
        return false;
    }
    if (isSet("help") || isSet("help-all")) {
        StandardOutput().write(helpText().toUtf8());
        return false;
    }
    if (isSet("version")) {
        StandardOutput().writeLine(QStringLiteral("hoopline-cli ") +
                                   QCoreApplication::applicationVersion());
        return false;
    }
    return true;
}

int CommandLine::fail(const QString &message) const
{
    Console::reportError(message);
    std::fputs((m_usage + QLatin1Char('\n')).toUtf8().constData(), stderr);
    return WrongUsage;
}

QString CommandLine::helpText() const
{
    // The parser knows only the program's path, not the name of the subcommand.
    const QString text = m_parser.helpText();
    return m_usage + text.mid(text.indexOf(QLatin1Char('\n')));
}
