#include "base/files/FolderListing.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <sys/stat.h>

namespace {

QByteArray encodedPath(const QString &dir)
{
    return QDir(dir).absolutePath().toUtf8();
}

using Stream = std::unique_ptr<DIR, int (*)(DIR *)>;

Stream open(const QString &dir)
{
    return Stream(opendir(encodedPath(dir).constData()), closedir);
}

FolderListing::Type typeOf(mode_t mode)
{
    if (S_ISREG(mode))
        return FolderListing::File;
    return S_ISDIR(mode) ? FolderListing::Folder : FolderListing::Other;
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/** The sort order of names; that of plain letters is found without the toolkit's tables. */
bool isBefore(const QString &a, const QString &b)
{
    const auto lower = [](ushort c) { return c >= 'A' && c <= 'Z' ? ushort(c | 0x20) : c; };
    const int length = std::min(a.length(), b.length());
    for (int i = 0; i < length; ++i) {
        const ushort left = lower(a.at(i).unicode());
        const ushort right = lower(b.at(i).unicode());
        if (left >= 0x80 || right >= 0x80) {
            const int order = QString::compare(a, b, Qt::CaseInsensitive);
            return order != 0 ? order < 0 : a < b;
        }
        if (left != right)
            return left < right;
    }
    return a.length() != b.length() ? a.length() < b.length() : a < b;
}

} // namespace

std::optional<FolderListing::Identity> FolderListing::identity(const QString &dir)
{
    struct stat facts;
    if (stat(encodedPath(dir).constData(), &facts) != 0)
        return std::nullopt;
    if (!S_ISDIR(facts.st_mode)) {
        errno = ENOTDIR;
        return std::nullopt;
    }
    return Identity(facts.st_dev, facts.st_ino);
}

QVector<QByteArray> FolderListing::fileNames(const QString &dir)
{
    QVector<QByteArray> names;
    const Stream stream = open(dir);
    while (const dirent *entry = stream ? readdir(stream.get()) : nullptr) {
        if (entry->d_type != DT_DIR)
            names.append(entry->d_name);
    }
    return names;
}

FolderListing::FolderListing(const QString &dir, bool hidden)
    : m_prefix(dir.endsWith(QLatin1Char('/')) ? dir : dir + QLatin1Char('/'))
{
    const Stream stream = open(dir);
    errno = stream ? 0 : errno;
    while (const dirent *entry = stream ? readdir(stream.get()) : nullptr) {
        if (hidden || entry->d_name[0] != '.')
            add(dirfd(stream.get()), entry->d_name);
        errno = 0;
    }
    if (errno != 0)
        m_skipped.append({SkippedEntry::UnreadableFolder, dir, qt_error_string()});
    composeNames();
    std::sort(m_entries.begin(), m_entries.end(),
              [](const Entry &a, const Entry &b) { return isBefore(a.name, b.name); });
}

void FolderListing::add(int folder, const char *name)
{
    Entry entry;
    entry.name = QString::fromUtf8(name);
    if (!isAscii(entry.name) && entry.name.toUtf8() != name) {
        m_skipped.append({SkippedEntry::UndecodableName, m_prefix + entry.name, QString()});
        return;
    }
    struct stat facts;
    if (fstatat(folder, name, &facts, 0) == 0) {
        entry.type = typeOf(facts.st_mode);
        entry.size = facts.st_size;
        entry.modified = facts.st_mtime;
        entry.identity = Identity(facts.st_dev, facts.st_ino);
    }
    m_entries.append(entry);
}

/**
 * The catalogue compares names in composed form. Where the file system tells the two
 * forms apart, only the name as it is stored opens the file.
 */
void FolderListing::composeNames()
{
    QSet<QString> names;
    for (Entry &entry : m_entries) {
        const QString composed = entry.name.normalized(QString::NormalizationForm_C);
        if (composed == entry.name)
            continue;
        if (names.isEmpty()) {
            for (const Entry &other : qAsConst(m_entries))
                names.insert(other.name);
        }
        if (!names.contains(composed) && QFileInfo::exists(m_prefix + composed))
            entry.name = composed;
    }
}
