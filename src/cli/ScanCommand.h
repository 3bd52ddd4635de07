#pragma once

#include "cli/Command.h"
#include <QCoreApplication>
#include <QStringList>

class ScanController;
class ScanOutput;

/** Adds folders to the catalogue and brings it into line with the disk. */
class ScanCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ScanCommand)

public:
    QString name() const override { return QStringLiteral("scan"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("[options] [FOLDER...]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    bool usesCatalogue() const override { return true; }
    bool writes() const override { return true; }
    int run(const CommandLine &line) const override;

private:
    static QStringList parseFolders(const QStringList &names);
    static void synchronise(ScanController &controller, const QStringList &folders);
    static int finish(const ScanController &controller, ScanOutput &output);
};
