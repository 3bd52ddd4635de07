#pragma once

#include "cli/Command.h"
#include <QCoreApplication>

/** Writes what people attached to their designs. */
class ExportCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ExportCommand)

public:
    QString name() const override { return QStringLiteral("export"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("[options] [FILE|-]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    bool usesCatalogue() const override { return true; }
    int run(const CommandLine &line) const override;
};
