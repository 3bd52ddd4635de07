#pragma once

#include "cli/EditCommand.h"

/** Gives designs a star, or takes it from them. */
class FavoriteCommand : public EditCommand
{
    Q_DECLARE_TR_FUNCTIONS(FavoriteCommand)

public:
    QString name() const override { return QStringLiteral("favorite"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("[options] [FILE...|-]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    int run(const CommandLine &line) const override;
};
