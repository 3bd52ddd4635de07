#include "cli/Companion.h"

#include "base/GSettings.h"
#include "cli/CatalogueChoice.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include <algorithm>
#include <cstring>
#include <exception>

static constexpr char HelpName[] = "help";

Companion::Companion()
    : m_commands(allCommands()),
      m_usage(QStringLiteral("hoopline-cli COMMAND [options] [ARGUMENT...]"))
{
}

int Companion::run(const QStringList &arguments)
{
    try {
        return dispatch(arguments);
    } catch (const UsageError &error) {
        Console::reportError(error.toString());
        Console::remark(CommandLine::usageLine(m_usage));
        return error.status();
    } catch (const CommandError &error) {
        Console::reportError(error.toString());
        return error.status();
    } catch (const Error &error) {
        Console::reportError(error.toString());
    } catch (const std::exception &error) {
        Console::reportError(QString::fromLocal8Bit(error.what()));
    }
    return Failure;
}

int Companion::dispatch(const QStringList &arguments)
{
    const QString first = arguments.value(0);
    if (first.isEmpty() || first.startsWith(QLatin1Char('-')))
        return runWithoutCommand(arguments);
    if (first == QLatin1String(HelpName))
        return help(arguments.mid(1));
    return runCommand(find(first), arguments.mid(1));
}

int Companion::runCommand(const Command &command, const QStringList &arguments)
{
    m_usage = command.usage();
    GSettings::setReadOnly(!command.writes());
    CommandLine line(m_usage, command.description(), command.allOptions());
    line.parse(arguments);
    if (line.isAnswer())
        return line.answer();
    if (command.usesCatalogue())
        CatalogueChoice::use(line);
    return command.run(line);
}

int Companion::runWithoutCommand(const QStringList &arguments)
{
    CommandLine line(m_usage, listOfCommands(), {});
    line.parse(arguments);
    if (!line.isAnswer())
        throw UsageError(tr("No command given."));
    return line.answer();
}

int Companion::help(const QStringList &arguments)
{
    if (arguments.value(0).startsWith(QLatin1Char('-')))
        return runWithoutCommand(arguments);
    if (arguments.size() > 1)
        throw UsageError(tr("Unexpected argument '%1'.").arg(arguments.at(1)));
    const QStringList wanted{QStringLiteral("--help")};
    return arguments.isEmpty() ? runWithoutCommand(wanted)
                               : runCommand(find(arguments.constFirst()), wanted);
}

const Command &Companion::find(const QString &name) const
{
    const auto found = std::find_if(m_commands.begin(), m_commands.end(),
                                    [&](const auto &command) { return command->name() == name; });
    if (found != m_commands.end())
        return **found;
    QStringList names{QLatin1String(HelpName)};
    for (const auto &command : m_commands)
        names.append(command->name());
    throw UsageError(withSuggestion(tr("Unknown command '%1'.").arg(name), name, names));
}

QString Companion::listOfCommands() const
{
    int width = int(strlen(HelpName));
    for (const auto &command : m_commands)
        width = std::max(width, int(command->name().size()));
    const auto entry = [width](const QString &name, const QString &summary) {
        return QStringLiteral("\n  %1  %2").arg(name, -width).arg(summary);
    };
    QString text = tr("The companion of Hoopline Organizer that needs no window.\n"
                      "\n"
                      "Commands; each has a --help of its own:");
    for (const auto &command : m_commands)
        text += entry(command->name(), command->summary());
    return text + entry(QLatin1String(HelpName), tr("Print the help of a command."));
}
