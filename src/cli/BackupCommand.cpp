#include "cli/BackupCommand.h"

#include "base/Error.h"
#include "catalogue/backups/BackupFolder.h"
#include "catalogue/backups/BackupSummary.h"
#include "catalogue/backups/GzipFormat.h"
#include "catalogue/sync/CatalogueFile.h"
#include "catalogue/sync/ProjectController.h"
#include "catalogue/userdata/RememberedData.h"
#include "catalogue/userdata/UserDataMemory.h"
#include "cli/BackupReport.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/LocalPath.h"
#include "cli/OutputFile.h"
#include <QDateTime>

QString BackupCommand::summary() const
{
    return tr("Keep a copy of the catalogue.");
}

QString BackupCommand::description() const
{
    return tr("Keeps a copy of the catalogue as it was saved last: in FILE, compressed if the "
              "name ends in .gz, or without one among the backups that the program makes by "
              "itself. Saved searches go to a file beside it that ends in .searches.json.");
}

QList<QCommandLineOption> BackupCommand::options() const
{
    return {{QStringLiteral("force"), tr("Replace a file that is there.")}};
}

int BackupCommand::run(const CommandLine &line) const
{
    const QStringList names = line.positionalArguments();
    if (names.size() > 1)
        throw UsageError(tr("Only one file can be given."));
    if (!names.isEmpty())
        OutputFile::check(names.constFirst(), {}, line.isSet("force"));

    const QString path = ProjectController().projectFilePath();
    const QByteArray bytes = catalogue(path);
    const QByteArray searches = RememberedData::searchesForBackup(UserDataMemory::pathBeside(path));
    if (!names.isEmpty() && !searches.isEmpty())
        OutputFile::check(BackupFolder::searchesBeside(names.constFirst()), {},
                          line.isSet("force"));
    const auto summary = BackupSummary::of(bytes);
    if (!summary)
        throw Error(tr("The catalogue is damaged; no backup was made."));
    const QString target = names.isEmpty()
                               ? BackupFolder(BackupFolder::pathBeside(path))
                                     .keepMoment(bytes, QDateTime::currentDateTime(), searches)
                               : write(bytes, searches, names.constFirst());
    StandardOutput output;
    output.writeLine(Console::printable(target));
    output.writeRemark(BackupReport::line(*summary));
    return output.flush() ? Success : Failure;
}

QByteArray BackupCommand::catalogue(const QString &path)
{
    try {
        return CatalogueFile(path).peek();
    } catch (const ErrorDoesNotExist &) {
        throw Error(tr("There is no catalogue yet; 'hoopline-cli scan FOLDER' makes one."));
    }
}

QString BackupCommand::write(const QByteArray &catalogue, const QByteArray &searches,
                             const QString &name)
{
    if (!searches.isEmpty())
        OutputFile::write(BackupFolder::searchesBeside(name), searches, FileReplacement::Durable,
                          FileReplacement::Private);
    const bool compressed = name.endsWith(QLatin1String(".gz"), Qt::CaseInsensitive);
    OutputFile::write(name, compressed ? GzipFormat::compressed(catalogue) : catalogue,
                      FileReplacement::Durable, FileReplacement::Private);
    return LocalPath::absolute(name);
}
