#include "catalogue/backups/BackupFolder.h"

#include "base/Error.h"
#include "base/files/FileStamp.h"
#include "base/files/FileTools.h"
#include "base/files/PrivateAccess.h"
#include "base/GDebug.h"
#include "catalogue/backups/BackupRetention.h"
#include "catalogue/backups/GzipFormat.h"

#include <algorithm>
#include <QDir>
#include <QFile>
#include <QFileInfo>

BackupFolder::BackupFolder(const QString &path) : m_path(path) {}

QString BackupFolder::pathBeside(const QString &catalogue)
{
    return QFileInfo(catalogue).absolutePath() + QStringLiteral("/backups");
}

QVector<BackupFolder::Entry> BackupFolder::entries() const
{
    QVector<Entry> entries;
    const QStringList names = QDir(m_path).entryList(QDir::Files);
    for (const QString &fileName : names) {
        if (const auto name = BackupName::parse(fileName))
            entries.append({*name, QDir(m_path).filePath(fileName)});
    }
    std::sort(entries.begin(), entries.end(),
              [](const Entry &a, const Entry &b) { return b.name < a.name; });
    return entries;
}

bool BackupFolder::hasDay(const QDate &day) const
{
    return FileStamp::of(pathOf(BackupName::ofDay(day))).exists();
}

void BackupFolder::keepDay(const QByteArray &catalogue, const QDate &day,
                           const QByteArray &searches)
{
    write(BackupName::ofDay(day), catalogue, searches);
    clear(day);
}

QString BackupFolder::keepMoment(const QByteArray &catalogue, const QDateTime &now,
                                 const QByteArray &searches)
{
    if (isNewest(catalogue))
        return entries().constFirst().path;
    int number = 1;
    while (FileStamp::of(pathOf(BackupName::ofMoment(now, number))).exists())
        ++number;
    const BackupName name = BackupName::ofMoment(now, number);
    write(name, catalogue, searches);
    clear(now.date());
    return pathOf(name);
}

bool BackupFolder::isNewest(const QByteArray &catalogue) const
{
    const QVector<Entry> all = entries();
    try {
        return !all.isEmpty() && read(all.constFirst().path) == catalogue;
    } catch (const Error &) {
        return false;
    }
}

QByteArray BackupFolder::read(const QString &path)
{
    QByteArray bytes = FileTools::readAll(path);
    if (!GzipFormat::isCompressed(bytes))
        return bytes;
    try {
        return GzipFormat::decompressed(bytes);
    } catch (const OutOfMemoryError &) {
        throw;
    } catch (const Error &error) {
        throw Error(tr("Failed to read %1: %2").arg(path, error.toString()));
    }
}

QString BackupFolder::searchesBeside(const QString &path)
{
    QString stem = path;
    for (const char *suffix : {".gz", ".xml"}) {
        if (stem.endsWith(QLatin1String(suffix), Qt::CaseInsensitive))
            stem.chop(int(qstrlen(suffix)));
    }
    return stem + QStringLiteral(".searches.json");
}

QByteArray BackupFolder::readSearches(const QString &path)
{
    const QString searches = searchesBeside(path);
    try {
        return FileStamp::of(searches).exists() ? FileTools::readAll(searches) : QByteArray();
    } catch (const Error &error) {
        gWarning("BackupFolder") << error.toString();
        return {};
    }
}

void BackupFolder::write(const BackupName &name, const QByteArray &catalogue,
                         const QByteArray &searches)
{
    PrivateAccess::makeFolder(m_path);
    PrivateAccess::takeFromOthers(m_path);
    FileReplacement::removeLeftovers(m_path);
    // Ahead of the backup, which is what tells that there is one.
    if (!searches.isEmpty())
        FileTools::writeAll(searchesBeside(pathOf(name)), searches, FileTools::Binary,
                            FileReplacement::Durable, FileReplacement::Private);
    FileTools::writeAll(pathOf(name), GzipFormat::compressed(catalogue), FileTools::Binary,
                        FileReplacement::Durable, FileReplacement::Private);
}

void BackupFolder::clear(const QDate &today)
{
    QVector<BackupName> names;
    const QVector<Entry> all = entries();
    for (const Entry &entry : all)
        names.append(entry.name);
    const QVector<BackupName> outdated = BackupRetention::outdated(names, today);
    for (const BackupName &name : outdated) {
        QFile::remove(pathOf(name));
        QFile::remove(searchesBeside(pathOf(name)));
    }
}

QString BackupFolder::pathOf(const BackupName &name) const
{
    return QDir(m_path).filePath(name.toString());
}
