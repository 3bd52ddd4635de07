#pragma once

#include "cli/Command.h"
#include <QCoreApplication>

/** Brings what "export" has written into the catalogue. */
class ImportCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ImportCommand)

public:
    QString name() const override { return QStringLiteral("import"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("[options] FILE|-"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    bool usesCatalogue() const override { return true; }
    bool writes() const override { return true; }
    int run(const CommandLine &line) const override;
};
