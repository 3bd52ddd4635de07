#pragma once

#include "cli/Command.h"
#include <QCoreApplication>

/** Lists the folders of the catalogue and takes some out of it. */
class FoldersCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(FoldersCommand)

public:
    QString name() const override { return QStringLiteral("folders"); }
    QString summary() const override;
    QString arguments() const override
    {
        return QStringLiteral("[list|remove] [options] [FOLDER...]");
    }
    QString description() const override;
    QStringList verbs() const override;
    QList<QCommandLineOption> options() const override;
    bool usesCatalogue() const override { return true; }
    bool writes() const override { return true; }
    int run(const CommandLine &line) const override;

private:
    static int list(const CommandLine &line);
    static int remove(const CommandLine &line, const QStringList &names);
};
