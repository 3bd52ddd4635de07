#pragma once

#include "cli/Command.h"
#include "preview/sheets/SheetOptions.h"
#include <QCoreApplication>

/** Puts designs onto pages of a PDF. */
class SheetCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(SheetCommand)

public:
    QString name() const override { return QStringLiteral("sheet"); }
    QString summary() const override;
    QString arguments() const override
    {
        return QStringLiteral("--pdf OUT.pdf [options] [FILE...|-]");
    }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    bool usesCatalogue() const override { return true; }
    int run(const CommandLine &line) const override;

private:
    /** @throws UsageError */
    static SheetOptions parse(const CommandLine &line);
    static SheetOptions::Facts parseFacts(const QString &list);
};
