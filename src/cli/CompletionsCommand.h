#pragma once

#include "cli/Command.h"
#include <QCoreApplication>

/** Prints what lets a shell complete commands and options. */
class CompletionsCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(CompletionsCommand)

public:
    QString name() const override { return QStringLiteral("completions"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("bash|zsh|fish"); }
    QString description() const override;
    QStringList verbs() const override;
    int run(const CommandLine &line) const override;
};
