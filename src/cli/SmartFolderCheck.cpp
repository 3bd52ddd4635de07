#include "cli/SmartFolderCheck.h"

#include "catalogue/records/Project.h"
#include "catalogue/sync/ScanReport.h"
#include "cli/CommandError.h"
#include "cli/Console.h"
#include "embroidery/EmbroideryIO.h"
#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <QDirIterator>
#include <QFile>
#include <QSet>

namespace {

/** Stops at the first one that it meets. */
bool holdsDesign(const QString &folder)
{
    return QDirIterator(folder, Embroidery::EmbroideryIO::supportedFormats(), QDir::Files,
                        QDirIterator::Subdirectories | QDirIterator::FollowSymlinks)
        .hasNext();
}

/** What errno is after the try to list @p folder; 0 when that is possible. */
int listingError(const QString &folder)
{
    DIR *listing = opendir(QFile::encodeName(folder).constData());
    if (!listing)
        return errno;
    closedir(listing);
    return 0;
}

/** Those that somebody has deleted are no problem. */
QStringList subFoldersThatCannotBeListed(const QString &folder, const QStringList &knownDesigns)
{
    QSet<QString> looked{folder};
    QStringList found;
    for (const QString &design : knownDesigns) {
        const QString path = design.left(design.lastIndexOf(QLatin1Char('/')));
        if (!path.startsWith(folder + QLatin1Char('/')) || looked.contains(path))
            continue;
        looked.insert(path);
        const int error = listingError(path);
        if (error != 0 && error != ENOENT && error != ENOTDIR)
            found.append(QStringLiteral("%1: %2").arg(path, qt_error_string(error)));
    }
    return found;
}

} // namespace

void SmartFolderCheck::expectAll(const Project &project)
{
    QStringList knownDesigns;
    const auto files = project.files();
    for (const auto &file : files)
        knownDesigns.append(file->absoluteFilePath());

    QStringList problems;
    const QStringList folders = project.smartFolders();
    for (const QString &folder : folders) {
        const QString problem = problemOf(folder, knownDesigns);
        if (problem.isEmpty())
            problems += subFoldersThatCannotBeListed(folder, knownDesigns);
        else
            problems += QStringLiteral("%1: %2").arg(folder, problem);
    }
    if (problems.isEmpty())
        return;
    std::for_each(problems.begin(), problems.end(), Console::reportError);
    refuse();
}

void SmartFolderCheck::expectListed(const ScanReport &report)
{
    for (const SkippedEntry &folder : report.skipped) {
        const QString prefix = folder.path + QLatin1Char('/');
        if (folder.kind != SkippedEntry::UndecodableName &&
            std::any_of(report.removed.begin(), report.removed.end(),
                        [&prefix](const QString &path) { return path.startsWith(prefix); }))
            refuse();
    }
}

void SmartFolderCheck::refuse()
{
    throw CommandError(FolderMissing, tr("Nothing was changed. With --prune the designs of "
                                         "such folders leave the catalogue."));
}

QString SmartFolderCheck::problemOf(const QString &folder, const QStringList &knownDesigns)
{
    const int error = listingError(folder);
    if (error != 0)
        return qt_error_string(error);
    const QString prefix = folder + QLatin1Char('/');
    const auto known =
        int(std::count_if(knownDesigns.begin(), knownDesigns.end(),
                          [&](const QString &path) { return path.startsWith(prefix); }));
    if (known > 0 && !holdsDesign(folder))
        return tr("holds none of its %n design(s) any more", nullptr, known);
    return {};
}
