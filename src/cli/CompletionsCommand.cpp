#include "cli/CompletionsCommand.h"

#include "cli/CommandLine.h"
#include "cli/CompletionScript.h"
#include "cli/Console.h"
#include "cli/ExitStatus.h"

QString CompletionsCommand::summary() const
{
    return tr("Print the completions of a shell.");
}

QString CompletionsCommand::description() const
{
    return tr("Prints a script that lets the shell complete commands, options and files. The "
              "packages bring it along.");
}

QStringList CompletionsCommand::verbs() const
{
    return {QStringLiteral("bash"), QStringLiteral("zsh"), QStringLiteral("fish")};
}

int CompletionsCommand::run(const CommandLine &line) const
{
    const QString shell = line.positionalArguments().value(0);
    expectVerb(shell);
    line.expectAtMost(1);
    const Commands commands = allCommands();
    const CompletionScript script(commands);
    StandardOutput output;
    output.write((shell == QLatin1String("bash")  ? script.bash()
                  : shell == QLatin1String("zsh") ? script.zsh()
                                                  : script.fish())
                     .toUtf8());
    return output.flush() ? Success : Failure;
}
