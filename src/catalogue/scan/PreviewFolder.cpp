#include "catalogue/scan/PreviewFolder.h"

#include "base/files/FileReplacement.h"
#include "base/files/FolderListing.h"
#include "base/Hex.h"
#include <QDir>
#include <QFile>

namespace {

constexpr qint64 BytesPerMB = 1048576;
const QLatin1String Suffix(".png");

} // namespace

PreviewFolder::PreviewFolder(const QString &path) : m_path(path)
{
    QDir().mkpath(path);
}

QString PreviewFolder::pathOf(const QByteArray &hash) const
{
    return m_path + QLatin1String(hash.toHex()) + Suffix;
}

QSet<QByteArray> PreviewFolder::tidyUp() const
{
    const QVector<QByteArray> names = FolderListing::fileNames(m_path);
    FileReplacement::removeLeftovers(m_path, names);
    QSet<QByteArray> keys;
    keys.reserve(names.size());
    for (const QByteArray &name : names) {
        if (name.endsWith(Suffix.data()))
            keys.insert(Hex::decoded(name.constData(), name.size() - Suffix.size()));
    }
    return keys;
}

void PreviewFolder::store(const QByteArray &hash, const QByteArray &png, int order)
{
    FileReplacement file(pathOf(hash), FileReplacement::AsBefore);
    if (!file.write(png))
        return;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto known = m_orders.constFind(hash);
    if (known != m_orders.constEnd() && *known > order)
        return;
    if (file.commit(FileReplacement::UntilRestart))
        m_orders.insert(hash, order);
}

void PreviewFolder::remove(const QSet<QByteArray> &hashes) const
{
    for (const QByteArray &hash : hashes)
        QFile::remove(pathOf(hash));
}

qint64 PreviewFolder::sizeInMB() const
{
    qint64 bytes = 0;
    const FolderListing listing(m_path, false);
    for (const FolderListing::Entry &entry : listing.entries()) {
        if (entry.name.endsWith(Suffix))
            bytes += entry.size;
    }
    return bytes / BytesPerMB;
}
