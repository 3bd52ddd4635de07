#include "cli/SmartFolderCheck.h"

#include "catalogue/records/Project.h"
#include "cli/CommandError.h"
#include "cli/Console.h"
#include "embroidery/EmbroideryIO.h"
#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <QDirIterator>
#include <QFile>

namespace {

/** Stops at the first one that it meets. */
bool holdsDesign(const QString &folder)
{
    return QDirIterator(folder, Embroidery::EmbroideryIO::supportedFormats(), QDir::Files,
                        QDirIterator::Subdirectories | QDirIterator::FollowSymlinks)
        .hasNext();
}

/** The system's reason why @p folder cannot be listed; null when it can. */
QString listingError(const QString &folder)
{
    DIR *listing = opendir(QFile::encodeName(folder).constData());
    if (!listing)
        return qt_error_string(errno);
    closedir(listing);
    return {};
}

} // namespace

void SmartFolderCheck::expectAll(const Project &project)
{
    QStringList knownDesigns;
    const auto files = project.files();
    for (const auto &file : files)
        knownDesigns.append(file->absoluteFilePath());

    bool complete = true;
    const QStringList folders = project.smartFolders();
    for (const QString &folder : folders) {
        const QString problem = problemOf(folder, knownDesigns);
        if (problem.isEmpty())
            continue;
        complete = false;
        Console::reportError(QStringLiteral("%1: %2").arg(folder, problem));
    }
    if (!complete)
        throw CommandError(FolderMissing, tr("Nothing was changed. With --prune the designs of "
                                             "such folders leave the catalogue."));
}

QString SmartFolderCheck::problemOf(const QString &folder, const QStringList &knownDesigns)
{
    const QString error = listingError(folder);
    if (!error.isEmpty())
        return error;
    const QString prefix = folder + QLatin1Char('/');
    const auto known =
        int(std::count_if(knownDesigns.begin(), knownDesigns.end(),
                          [&](const QString &path) { return path.startsWith(prefix); }));
    if (known > 0 && !holdsDesign(folder))
        return tr("holds none of its %n design(s) any more", nullptr, known);
    return {};
}
