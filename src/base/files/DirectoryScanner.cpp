#include "base/files/DirectoryScanner.h"

#include "base/files/FolderListing.h"
#include "base/IAbortCheck.h"
#include "base/IProgressListener.h"

#include <algorithm>
#include <QVarLengthArray>
#include <utility>

static QString shortenedForDisplay(const QString &path)
{
    constexpr int maximumLength = 40;
    if (path.length() <= maximumLength)
        return path;
    return QStringLiteral("...") + path.right(maximumLength);
}

DirectoryScanner::DirectoryScanner(const QString &filter)
{
    setFilters(QStringList(filter));
}

DirectoryScanner::DirectoryScanner(const QStringList &filters, const QStringList &excludeDirs)
    : m_excludeDirs(excludeDirs)
{
    setFilters(filters);
}

void DirectoryScanner::setFilters(const QStringList &filters)
{
    setFilters(stringListToRegExp(filters));
}

void DirectoryScanner::setFilters(const QList<WildcardPattern> &filters)
{
    m_filters = filters;
}

void DirectoryScanner::setExtensions(const QStringList &extensions)
{
    QStringList wildcards;
    for (const QString &extension : extensions)
        wildcards.append(QStringLiteral("*.") + extension);
    setFilters(wildcards);
}

void DirectoryScanner::setExcludeFilters(const QStringList &filters)
{
    setExcludeFilters(stringListToRegExp(filters));
}

void DirectoryScanner::setExcludeFilters(const QList<WildcardPattern> &filters)
{
    m_excludeFilters = filters;
}

void DirectoryScanner::setExcludeDirs(const QStringList &names)
{
    m_excludeDirs = names;
}

void DirectoryScanner::setReturnHidden(bool returnHidden)
{
    m_returnHidden = returnHidden;
}

void DirectoryScanner::setAbortCheck(IAbortCheck *check)
{
    m_abortCheck = check;
}

void DirectoryScanner::setProgressListener(IProgressListener *listener)
{
    m_progressListener = listener;
}

/** One walk: the folders on the way to where it is, and what it has found so far. */
class DirectoryScanner::Walk
{
public:
    explicit Walk(const DirectoryScanner &scanner) : m_scanner(scanner) {}

    /** @param known the folder's identity where it is known */
    void enter(const QString &dir, std::optional<FolderListing::Identity> known = {})
    {
        const IAbortCheck *check = m_scanner.m_abortCheck;
        if (check && check->abortState() != 0)
            return;
        if (IProgressListener *listener = m_scanner.m_progressListener)
            listener->proceed(tr("Scanning directory '%1'").arg(shortenedForDisplay(dir)));
        const auto folder = known ? known : FolderListing::identity(dir);
        if (!folder) {
            m_found.skipped.append({SkippedEntry::MissingFolder, dir, qt_error_string()});
            return;
        }
        m_way.append(*folder);
        look(FolderListing(dir, m_scanner.m_returnHidden));
        m_way.removeLast();
    }

    FoundFiles takeFound() { return std::move(m_found); }

private:
    void look(const FolderListing &listing)
    {
        m_found.skipped += listing.skipped();
        for (const FolderListing::Entry &entry : listing.entries()) {
            const QString path = listing.pathOf(entry);
            if (entry.type == FolderListing::File && m_scanner.passesFilters(path))
                m_found.files.append({path, entry.size, entry.modified});
        }
        for (const FolderListing::Entry &entry : listing.entries()) {
            if (entry.type == FolderListing::Folder && m_scanner.isEntered(entry.name) &&
                !m_way.contains(entry.identity))
                enter(listing.pathOf(entry), entry.identity);
        }
    }

    const DirectoryScanner &m_scanner;
    FoundFiles m_found;
    QVarLengthArray<FolderListing::Identity, 32> m_way;
};

FoundFiles DirectoryScanner::find(const QString &dir) const
{
    Walk walk(*this);
    walk.enter(dir);
    return walk.takeFound();
}

QStringList DirectoryScanner::findFilesRecursive(const QString &dir) const
{
    QStringList paths;
    const QVector<FoundFile> files = find(dir).files;
    paths.reserve(files.count());
    for (const FoundFile &file : files)
        paths.append(file.path);
    return paths;
}

QList<QFileInfo> DirectoryScanner::fileInfoRecursive(const QString &dir) const
{
    QList<QFileInfo> infos;
    const QVector<FoundFile> files = find(dir).files;
    infos.reserve(files.count());
    for (const FoundFile &file : files)
        infos.append(QFileInfo(file.path));
    return infos;
}

QList<QFileInfo> DirectoryScanner::allEntries(const QDir &dir) const
{
    QList<QFileInfo> infos;
    const FolderListing listing(dir.path(), m_returnHidden);
    for (const FolderListing::Entry &entry : listing.entries())
        infos.append(QFileInfo(listing.pathOf(entry)));
    return infos;
}

QList<QFileInfo> DirectoryScanner::fileEntries(const QList<QFileInfo> &entries) const
{
    QList<QFileInfo> files;
    for (const QFileInfo &entry : entries) {
        if (entry.isFile() && passesFilters(entry.filePath()))
            files.append(entry);
    }
    return files;
}

QList<QFileInfo> DirectoryScanner::fileEntries(const QDir &dir) const
{
    return fileEntries(allEntries(dir));
}

QList<QFileInfo> DirectoryScanner::dirEntries(const QList<QFileInfo> &entries) const
{
    QList<QFileInfo> dirs;
    for (const QFileInfo &entry : entries) {
        if (entry.isDir() && isEntered(entry.fileName()))
            dirs.append(entry);
    }
    return dirs;
}

QList<QFileInfo> DirectoryScanner::dirEntries(const QDir &dir) const
{
    return dirEntries(allEntries(dir));
}

QList<WildcardPattern> DirectoryScanner::stringListToRegExp(const QStringList &wildcards)
{
    QList<WildcardPattern> expressions;
    for (const QString &wildcard : wildcards)
        expressions.append(wildcardPattern(wildcard));
    return expressions;
}

bool DirectoryScanner::isEntered(const QString &name) const
{
    return name != QLatin1String(".") && name != QLatin1String("..") &&
           !m_excludeDirs.contains(name);
}

bool DirectoryScanner::passesFilters(const QString &path) const
{
    if (m_filters.isEmpty() && m_excludeFilters.isEmpty())
        return true;
    const QString absolute = QFileInfo(path).absoluteFilePath();
    const auto matches = [&absolute](const WildcardPattern &filter) {
        return filter.exactMatch(absolute);
    };
    return (m_filters.isEmpty() || std::any_of(m_filters.begin(), m_filters.end(), matches)) &&
           std::none_of(m_excludeFilters.begin(), m_excludeFilters.end(), matches);
}
