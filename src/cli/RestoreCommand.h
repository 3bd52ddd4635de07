#pragma once

#include "cli/Command.h"

#include <QCoreApplication>

/** "hoopline-cli restore": puts a backup into the place of the catalogue. */
class RestoreCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RestoreCommand)

public:
    QString name() const override { return QStringLiteral("restore"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("FILE"); }
    QString description() const override;
    bool usesCatalogue() const override { return true; }
    bool writes() const override { return true; }
    int run(const CommandLine &line) const override;
};
