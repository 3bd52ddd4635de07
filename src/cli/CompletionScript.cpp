#include "cli/CompletionScript.h"

namespace {

/** Also those that every command has. */
QList<QCommandLineOption> optionsOf(const Command &command)
{
    return command.allOptions() +
           QList<QCommandLineOption>{
               {{QStringLiteral("h"), QStringLiteral("help")}, Command::tr("Print this help.")},
               {{QStringLiteral("V"), QStringLiteral("version")},
                Command::tr("Print the version.")}};
}

/** "-0" and "--null", for instance. */
QStringList spellings(const QCommandLineOption &option)
{
    QStringList spelt;
    const QStringList names = option.names();
    for (const QString &name : names)
        spelt.append((name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name);
    return spelt;
}

bool takesValue(const QCommandLineOption &option)
{
    return !option.valueName().isEmpty();
}

QStringList spellings(const QList<QCommandLineOption> &options, bool withValueOnly)
{
    QStringList spelt;
    for (const QCommandLineOption &option : options) {
        if (takesValue(option) || !withValueOnly)
            spelt += spellings(option);
    }
    return spelt;
}

QString quoted(QString text)
{
    text.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

/** A text inside the brackets of an option in a completion of zsh. */
QString zshText(QString text)
{
    for (const char *special : {"\\", "[", "]", ":"})
        text.replace(QLatin1String(special), QLatin1Char('\\') + QLatin1String(special));
    return text;
}

QString zshOption(const QCommandLineOption &option)
{
    const QString value = takesValue(option)
                              ? QStringLiteral(":%1:_files").arg(zshText(option.valueName()))
                              : QString();
    QString arguments;
    const QStringList spelt = spellings(option);
    for (const QString &name : spelt)
        arguments +=
            QStringLiteral(" \\\n        ") +
            quoted(QStringLiteral("%1[%2]%3").arg(name, zshText(option.description()), value));
    return arguments;
}

} // namespace

QStringList CompletionScript::names() const
{
    QStringList names;
    for (const auto &command : m_commands)
        names.append(command->name());
    names.append(QStringLiteral("help"));
    return names;
}

QString CompletionScript::bash() const
{
    QString cases;
    for (const auto &command : m_commands) {
        const auto options = optionsOf(*command);
        cases += QStringLiteral("    %1)\n"
                                "        options='%2'\n"
                                "        valued='%3'\n"
                                "        verbs='%4'\n"
                                "        ;;\n")
                     .arg(command->name(), spellings(options, false).join(QLatin1Char(' ')),
                          spellings(options, true).join(QLatin1Char(' ')),
                          command->verbs().join(QLatin1Char(' ')));
    }
    return QStringLiteral(R"(# Completions of hoopline-cli for bash.
_hoopline_cli()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local commands='%1' options='' valued='' verbs=''
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "$commands --help --version" -- "$current")
        return
    fi
    case ${COMP_WORDS[1]} in
    help)
        verbs=$commands
        ;;
%2    esac
    if [[ " $valued " != *" $previous "* && $current == -?* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    elif ((COMP_CWORD == 2)) && [[ -n $verbs ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$verbs" -- "$current")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _hoopline_cli hoopline-cli
)")
        .arg(names().join(QLatin1Char(' ')), cases);
}

QString CompletionScript::zsh() const
{
    QString described;
    QString cases;
    for (const auto &command : m_commands) {
        described += QStringLiteral("        ") +
                     quoted(command->name() + QLatin1Char(':') + zshText(command->summary())) +
                     QLatin1Char('\n');
        QString arguments;
        const auto options = optionsOf(*command);
        for (const QCommandLineOption &option : options)
            arguments += zshOption(option);
        if (!command->verbs().isEmpty())
            arguments += QStringLiteral(" \\\n        '1:verb:(%1)'")
                             .arg(command->verbs().join(QLatin1Char(' ')));
        cases += QStringLiteral("    %1)\n        _arguments%2 \\\n        '*:file:_files'\n"
                                "        ;;\n")
                     .arg(command->name(), arguments);
    }
    return QStringLiteral(R"(#compdef hoopline-cli
# Completions of hoopline-cli for zsh.
_hoopline_cli()
{
    local -a commands
    commands=(
%1        'help'
    )
    if ((CURRENT == 2)); then
        _describe command commands
        return
    fi
    shift words
    ((CURRENT--))
    case ${words[1]} in
    help)
        _describe command commands
        ;;
%2    esac
}
_hoopline_cli "$@"
)")
        .arg(described, cases);
}

QString CompletionScript::fish() const
{
    QString text = QStringLiteral("# Completions of hoopline-cli for fish.\n");
    const QString line = QStringLiteral("complete -c hoopline-cli");
    for (const auto &command : m_commands) {
        text += QStringLiteral("%1 -f -n __fish_use_subcommand -a %2 -d %3\n")
                    .arg(line, command->name(), quoted(command->summary()));
    }
    text += QStringLiteral("%1 -f -n __fish_use_subcommand -a help\n").arg(line);
    text += QStringLiteral("%1 -f -n '__fish_seen_subcommand_from help' -a '%2'\n")
                .arg(line, names().join(QLatin1Char(' ')));
    for (const auto &command : m_commands) {
        const QString given =
            QStringLiteral("%1 -n '__fish_seen_subcommand_from %2'").arg(line, command->name());
        if (!command->verbs().isEmpty())
            text +=
                QStringLiteral("%1 -a '%2'\n").arg(given, command->verbs().join(QLatin1Char(' ')));
        const auto options = optionsOf(*command);
        for (const QCommandLineOption &option : options) {
            text += given;
            const QStringList optionNames = option.names();
            for (const QString &name : optionNames)
                text += (name.size() == 1 ? QStringLiteral(" -s ") : QStringLiteral(" -l ")) + name;
            if (takesValue(option))
                text += QStringLiteral(" -r");
            text += QStringLiteral(" -d ") + quoted(option.description()) + QLatin1Char('\n');
        }
    }
    return text;
}
