#pragma once

#include "cli/Command.h"
#include <QCoreApplication>

/** Paints pictures of many designs into one folder. */
class ThumbnailsCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ThumbnailsCommand)

public:
    QString name() const override { return QStringLiteral("thumbnails"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("[options] OUTDIR [FILE...|-]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    bool usesCatalogue() const override { return true; }
    int run(const CommandLine &line) const override;
};
