#include "base/files/FileTools.h"

#include "base/Error.h"
#include "base/files/DirectoryScanner.h"

#include <algorithm>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

static QIODevice::OpenMode withMode(QIODevice::OpenMode flags, FileTools::OpenMode mode)
{
    return mode == FileTools::Binary ? flags : flags | QIODevice::Text;
}

QByteArray FileTools::readAll(const QString &path, OpenMode mode)
{
    QFile file(path);
    if (!file.open(withMode(QIODevice::ReadOnly, mode)))
        throw Error(tr("Failed to load %1: %2").arg(path, file.errorString()));
    QByteArray data = file.readAll();
    if (file.error() != QFile::NoError)
        throw Error(tr("Failed to read %1: %2").arg(path, file.errorString()));
    return data;
}

void FileTools::writeAll(const QString &path, const QByteArray &data, OpenMode,
                         FileReplacement::Durability durability, FileReplacement::Access access)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    FileReplacement file(path, access);
    if (!file.write(data) || !file.commit(durability))
        throw Error(tr("Failed to write %1: %2").arg(path, file.errorString()));
}

void FileTools::copyFile(const QString &from, const QString &to)
{
    writeAll(to, readAll(from));
}

void FileTools::copyFilesRecursive(const QString &from, const QString &to)
{
    const QDir source(from);
    const QDir target(to);
    const QStringList paths = DirectoryScanner().findFilesRecursive(from);
    for (const QString &path : paths)
        copyFile(path, target.filePath(source.relativeFilePath(path)));
}

void FileTools::removeDir(const QString &path)
{
    const QDir dir(path);
    if (!dir.exists())
        return;
    DirectoryScanner scanner;
    scanner.setReturnHidden(true);
    const QList<QFileInfo> entries = scanner.allEntries(dir);
    const QList<QFileInfo> subDirs = scanner.dirEntries(entries);
    for (const QFileInfo &entry : subDirs) {
        if (entry.isSymLink())
            QFile::remove(entry.filePath());
        else
            removeDir(entry.filePath());
    }
    for (const QFileInfo &entry : entries) {
        if (!entry.isDir())
            QFile::remove(entry.filePath());
    }
    QDir().rmdir(path);
}

void FileTools::touchFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append) ||
        !file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime))
        throw Error(tr("Failed to write %1: %2").arg(path, file.errorString()));
}

void FileTools::touchFiles(const QStringList &paths)
{
    std::for_each(paths.begin(), paths.end(), touchFile);
}

void FileTools::deleteFiles(const QStringList &paths)
{
    for (const QString &path : paths)
        QFile::remove(path);
}

QString FileTools::longestCommonPathPrefix(const QStringList &paths)
{
    if (paths.isEmpty())
        return {};
    QString prefix = paths.first();
    for (const QString &path : paths) {
        const auto end =
            std::mismatch(prefix.cbegin(), prefix.cend(), path.cbegin(), path.cend()).first;
        prefix.truncate(int(end - prefix.cbegin()));
    }
    return prefix.left(prefix.lastIndexOf(QLatin1Char('/')) + 1);
}
