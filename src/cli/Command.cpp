#include "cli/Command.h"

#include "cli/DuplicatesCommand.h"
#include "cli/InspectCommand.h"
#include "cli/ListCommand.h"
#include "cli/ScanCommand.h"

QString Command::usage() const
{
    return QStringLiteral("hoopline-cli %1 %2").arg(name(), arguments());
}

Commands allCommands()
{
    Commands commands;
    commands.push_back(std::make_unique<ScanCommand>());
    commands.push_back(std::make_unique<InspectCommand>());
    commands.push_back(std::make_unique<ListCommand>());
    commands.push_back(std::make_unique<DuplicatesCommand>());
    return commands;
}
