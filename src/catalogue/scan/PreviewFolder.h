#pragma once

#include <mutex>
#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

/**
 * The folder of previews: a PNG file for each content, named after its hash. Any thread.
 */
class PreviewFolder
{
public:
    /** @param path with a slash at its end; made if it is missing */
    explicit PreviewFolder(const QString &path);

    PreviewFolder(const PreviewFolder &) = delete;
    PreviewFolder &operator=(const PreviewFolder &) = delete;

    /** Removes what writers that died have left. @return the hashes that have a preview */
    QSet<QByteArray> tidyUp() const;

    /**
     * Writes a preview, whole or not at all; a failure is not told, since the next scan
     * tries again. Files of one content may give different pictures, as their names
     * choose the reader: of several previews for one hash the one of the highest
     * @p order stays, whichever comes first.
     */
    void store(const QByteArray &hash, const QByteArray &png, int order);

    void remove(const QSet<QByteArray> &hashes) const;

    /** All previews together, in whole megabytes. */
    qint64 sizeInMB() const;

private:
    QString pathOf(const QByteArray &hash) const;

    const QString m_path;
    std::mutex m_mutex;
    QHash<QByteArray, int> m_orders; ///< of the previews that were written
};
