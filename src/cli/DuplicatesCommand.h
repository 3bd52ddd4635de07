#pragma once

#include "catalogue/duplicates/DuplicateGroup.h"
#include "catalogue/records/IFile.h"
#include "cli/Command.h"
#include <QCoreApplication>
#include <QList>
#include <QSharedPointer>

/** Prints the designs that are there more than once. */
class DuplicatesCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(DuplicatesCommand)

public:
    QString name() const override { return QStringLiteral("duplicates"); }
    QString summary() const override;
    QString arguments() const override { return QStringLiteral("[options]"); }
    QString description() const override;
    QList<QCommandLineOption> options() const override;
    bool usesCatalogue() const override { return true; }
    int run(const CommandLine &line) const override;

private:
    using Files = QList<QSharedPointer<IFile>>;

    static DuplicateResult find(const Files &files);
    static bool writeJson(const DuplicateResult &result, const Files &files);
    static bool writeText(const DuplicateResult &result, const Files &files);
};
