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
    // The parser's own help option brings one for options of Qt along, which have no use here.
    m_parser.addOption({{QStringLiteral("h"), QStringLiteral("help")},
                        QCoreApplication::translate("CommandLine", "Print this help.")});
    m_parser.addOption({{QStringLiteral("v"), QStringLiteral("version")},
                        QCoreApplication::translate("CommandLine", "Print the version.")});
}

bool CommandLine::parse()
{
    if (!m_parser.parse(QStringList(QStringLiteral("hoopline-cli")) + m_arguments)) {
        m_exitStatus = fail(m_parser.errorText());
        return false;
    }
    if (isSet("help"))
        answer(helpText());
    else if (isSet("version"))
        answer(QStringLiteral("hoopline-cli %1\n").arg(QCoreApplication::applicationVersion()));
    else
        return true;
    return false;
}

void CommandLine::answer(const QString &text)
{
    StandardOutput output;
    output.write(text.toUtf8());
    m_exitStatus = output.flush() ? Success : Failure;
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
