#pragma once

#include "cli/Command.h"
#include <QCoreApplication>

/** Reads designs and tells about them. */
class InspectCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(InspectCommand)

public:
    QString name() const override { return QStringLiteral("inspect"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("[options] FILE..."); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    int run(const CommandLine &line) const override;
};
