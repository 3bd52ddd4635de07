#pragma once

#include "cli/Command.h"

#include <QByteArray>
#include <QCoreApplication>

/** "hoopline-cli backup": the catalogue as it is now, into the backups or a file. */
class BackupCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(BackupCommand)

public:
    QString name() const override { return QStringLiteral("backup"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("[options] [FILE]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    bool usesCatalogue() const override { return true; }
    int run(const CommandLine &line) const override;

private:
    static QByteArray catalogue(const QString &path);
    static QString write(const QByteArray &catalogue, const QByteArray &searches,
                         const QString &name);
};
