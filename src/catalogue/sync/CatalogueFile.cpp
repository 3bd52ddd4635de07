#include "catalogue/sync/CatalogueFile.h"

#include "base/files/FileTools.h"
#include "base/files/PrivateAccess.h"
#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/records/DataModelReader.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <utility>

namespace {

QByteArray digest(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

QString nameOf(CatalogueFile::Fate fate)
{
    switch (fate) {
    case CatalogueFile::Damaged:
        return QStringLiteral("damaged");
    case CatalogueFile::Replaced:
        return QStringLiteral("replaced");
    case CatalogueFile::Unsaved:
        return QStringLiteral("unsaved");
    }
    Q_UNREACHABLE();
}

bool holds(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.size() == bytes.size() && file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

} // namespace

CatalogueFile::CatalogueFile(const QString &path) : m_path(path) {}

QByteArray CatalogueFile::read()
{
    // What is put there while it is being read is seen as newer afterwards.
    const FileStamp stamp = FileStamp::of(m_path);
    QByteArray bytes = peek();
    see(stamp, bytes);
    return bytes;
}

QByteArray CatalogueFile::peek() const
{
    return DataModelReader::bytesOf(m_path);
}

void CatalogueFile::write(const QByteArray &bytes)
{
    requireFolder();
    FileReplacement file(m_path, FileReplacement::Private);
    const bool written = file.write(bytes) && file.commit(FileReplacement::Durable);
    // The file may have been replaced though its folder could not be waited for.
    if (written || holds(m_path, bytes))
        see(FileStamp::of(m_path), bytes);
    if (!written)
        throw CatalogueUnsavedError(tr("Failed to write %1: %2").arg(m_path, file.errorString()),
                                    file.errorString());
}

void CatalogueFile::requireFolder() const
{
    const QString folder = QFileInfo(m_path).absolutePath();
    if (!m_folder.exists()) {
        PrivateAccess::makeFolder(folder);
        return;
    }
    const FileStamp now = FileStamp::of(folder);
    // The empty folder that a drive is mounted on belongs to another device than the drive.
    if (now.exists() && (now.device == m_folder.device || !FileStamp::isMissing(m_path)))
        return;
    const QString reason = tr("The folder '%1' is gone. Is its drive plugged in?")
                               .arg(QDir::toNativeSeparators(folder));
    throw CatalogueUnsavedError(reason, reason);
}

void CatalogueFile::see(const FileStamp &stamp, const QByteArray &bytes)
{
    m_lastSeen = stamp;
    m_folder = FileStamp::of(QFileInfo(m_path).absolutePath());
    // Of a large catalogue it takes a while, and is seldom asked for. What the work was given
    // would be kept as long as what came of it.
    m_hash = std::async([held = bytes]() mutable {
                 return digest(std::exchange(held, QByteArray()));
             }).share();
}

bool CatalogueFile::isAsLastSeen() const
{
    return FileStamp::of(m_path) == m_lastSeen;
}

bool CatalogueFile::isNewerThanLastSeen() const
{
    return FileStamp::of(m_path).isNewerThan(m_lastSeen);
}

bool CatalogueFile::isLastSeen(const QByteArray &bytes) const
{
    return m_hash.valid() && digest(bytes) == m_hash.get();
}

QByteArray CatalogueFile::lastSeenHash() const
{
    return m_hash.valid() ? m_hash.get() : QByteArray();
}

QString CatalogueFile::keep(const QByteArray &bytes, Fate fate) const
{
    const QFileInfo catalogue(m_path);
    const QDir folder = catalogue.absoluteDir();
    const QString stem = QStringLiteral("%1.%2-").arg(catalogue.completeBaseName(), nameOf(fate));
    const QString suffix = QLatin1Char('.') + catalogue.suffix();
    const QStringList kept = folder.entryList({stem + QLatin1Char('*') + suffix}, QDir::Files);
    for (const QString &name : kept) {
        if (holds(folder.filePath(name), bytes))
            return folder.filePath(name);
    }
    const QString date = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString path = folder.filePath(stem + date + suffix);
    for (int i = 2; FileStamp::of(path).exists(); ++i)
        path = folder.filePath(QStringLiteral("%1%2-%3%4").arg(stem, date).arg(i).arg(suffix));
    try {
        FileTools::writeAll(path, bytes, FileTools::Binary, FileReplacement::Durable,
                            FileReplacement::Private);
    } catch (const Error &error) {
        throw CatalogueUnsavedError(error.toString(), error.toString());
    }
    return path;
}
