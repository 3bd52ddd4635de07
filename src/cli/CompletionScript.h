#pragma once

#include "cli/Command.h"
#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

/** Scripts that let shells complete the command line, made from the table of commands. */
class CompletionScript
{
public:
    /** @param commands must live as long as the script */
    explicit CompletionScript(const Commands &commands) : m_commands(commands) {}

    QString bash() const;
    QString zsh() const;
    QString fish() const;

private:
    QStringList names() const;

    const Commands &m_commands;
};
