#pragma once

#include "cli/Command.h"
#include <QCoreApplication>
#include <QSharedPointer>

class DesignFormat;
class IFile;

/** Prints the catalogue, narrowed as in the organiser. */
class ListCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ListCommand)

public:
    QString name() const override { return QStringLiteral("list"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("[options]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    bool usesCatalogue() const override { return true; }
    int run(const CommandLine &line) const override;

private:
    static int print(const CommandLine &line, const DesignFormat &format,
                     const QList<QSharedPointer<IFile>> &files);
};
