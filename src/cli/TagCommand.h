#pragma once

#include "cli/EditCommand.h"

/** Gives designs a tag, or takes it from them. */
class TagCommand : public EditCommand
{
    Q_DECLARE_TR_FUNCTIONS(TagCommand)

public:
    QString name() const override { return QStringLiteral("tag"); }
    QString summary() const override;
    QString arguments() const override
    {
        return QStringLiteral("add|remove [options] TAG [FILE...|-]");
    }
    QString description() const override;
    QStringList verbs() const override;
    QList<QCommandLineOption> options() const override;
    int run(const CommandLine &line) const override;
};
