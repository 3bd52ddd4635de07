#include "base/files/DirectoryScanner.h"

#include "base/IAbortCheck.h"
#include "base/IProgressListener.h"

#include <algorithm>
#include <memory>

#ifdef Q_OS_UNIX
#include <dirent.h>
#endif

/** The names in a folder as the file system has them, "." and ".." included. */
static QStringList entryNames(const QDir &dir)
{
#ifdef Q_OS_UNIX
    QStringList names;
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(
        opendir(dir.absolutePath().toUtf8().constData()), closedir);
    if (!stream)
        return names;
    while (const dirent *entry = readdir(stream.get()))
        names.append(QString::fromUtf8(entry->d_name));
    return names;
#else
    return dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::System, QDir::Unsorted);
#endif
}

/** QDir::filePath() would take a name that begins with a colon for a compiled-in resource. */
static QString entryPath(const QDir &dir, const QString &name)
{
    const QString path = dir.path();
    return path.endsWith(QLatin1Char('/')) ? path + name : path + QLatin1Char('/') + name;
}

/**
 * The composed form of a name, which is how the catalogue compares names. Where the file
 * system tells the two forms apart, only the name as it is stored opens the file.
 */
static QString composedName(const QDir &dir, const QString &name, const QStringList &names)
{
    const QString composed = name.normalized(QString::NormalizationForm_C);
    if (composed == name)
        return name;
    const bool reachesTheFile =
        QFileInfo::exists(entryPath(dir, composed)) && !names.contains(composed);
    return reachesTheFile ? composed : name;
}

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

void DirectoryScanner::setFilters(const QList<QRegExp> &filters)
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

void DirectoryScanner::setExcludeFilters(const QList<QRegExp> &filters)
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

QStringList DirectoryScanner::findFilesRecursive(const QString &dir) const
{
    QStringList paths;
    const QList<QFileInfo> files = fileInfoRecursive(dir);
    paths.reserve(files.count());
    for (const QFileInfo &file : files)
        paths.append(file.filePath());
    return paths;
}

QList<QFileInfo> DirectoryScanner::fileInfoRecursive(const QString &dir) const
{
    if (m_abortCheck && m_abortCheck->abortState() != 0)
        return {};
    if (m_progressListener)
        m_progressListener->proceed(tr("Scanning directory '%1'").arg(shortenedForDisplay(dir)));
    const QList<QFileInfo> entries = allEntries(QDir(dir));
    QList<QFileInfo> files = fileEntries(entries);
    const QList<QFileInfo> subDirs = dirEntries(entries);
    for (const QFileInfo &subDir : subDirs)
        files.append(fileInfoRecursive(subDir.filePath()));
    return files;
}

QList<QFileInfo> DirectoryScanner::allEntries(const QDir &dir) const
{
    QList<QFileInfo> entries;
    const QStringList names = entryNames(dir);
    for (const QString &name : names) {
        const QFileInfo entry(entryPath(dir, composedName(dir, name, names)));
        if (m_returnHidden || !entry.isHidden())
            entries.append(entry);
    }
    std::sort(entries.begin(), entries.end(), [](const QFileInfo &a, const QFileInfo &b) {
        return QString::compare(a.fileName(), b.fileName(), Qt::CaseInsensitive) < 0;
    });
    return entries;
}

QList<QFileInfo> DirectoryScanner::fileEntries(const QList<QFileInfo> &entries) const
{
    QList<QFileInfo> files;
    for (const QFileInfo &entry : entries) {
        if (passesFilters(entry) && entry.isFile())
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
        const QString name = entry.fileName();
        if (entry.isDir() && name != QLatin1String(".") && name != QLatin1String("..") &&
            !m_excludeDirs.contains(name))
            dirs.append(entry);
    }
    return dirs;
}

QList<QFileInfo> DirectoryScanner::dirEntries(const QDir &dir) const
{
    return dirEntries(allEntries(dir));
}

QList<QRegExp> DirectoryScanner::stringListToRegExp(const QStringList &wildcards)
{
    QList<QRegExp> expressions;
    for (const QString &wildcard : wildcards)
        expressions.append(QRegExp(wildcard, Qt::CaseInsensitive, QRegExp::Wildcard));
    return expressions;
}

bool DirectoryScanner::passesFilters(const QFileInfo &entry) const
{
    if (m_filters.isEmpty() && m_excludeFilters.isEmpty())
        return true;
    const QString path = entry.absoluteFilePath();
    const auto matches = [&path](const QRegExp &filter) { return filter.exactMatch(path); };
    return (m_filters.isEmpty() || std::any_of(m_filters.begin(), m_filters.end(), matches)) &&
           std::none_of(m_excludeFilters.begin(), m_excludeFilters.end(), matches);
}
