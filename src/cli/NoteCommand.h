#pragma once

#include "cli/EditCommand.h"

/** Writes notes on designs; what was written before is not lost unasked. */
class NoteCommand : public EditCommand
{
    Q_DECLARE_TR_FUNCTIONS(NoteCommand)

public:
    QString name() const override { return QStringLiteral("note"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("[options] TEXT|- [FILE...|-]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    int run(const CommandLine &line) const override;
};
