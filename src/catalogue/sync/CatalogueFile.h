#pragma once

#include "base/files/FileStamp.h"

#include <future>
#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/**
 * The one catalogue file on the disk, as bytes: reads and writes it whole and knows
 * which file it was that it last read or wrote. What the bytes say is not known here.
 * Touches no file until it is asked to; one thread at a time.
 */
class CatalogueFile
{
    Q_DECLARE_TR_FUNCTIONS(CatalogueFile)

public:
    /** What became of a catalogue whose bytes are kept; names the file that keeps them. */
    enum Fate {
        Damaged,  ///< could not be read as a catalogue
        Replaced, ///< somebody else's, found where the program was about to write
        Unsaved   ///< held edits that somebody else's catalogue has taken the place of
    };

    explicit CatalogueFile(const QString &path);

    QString path() const { return m_path; }

    /**
     * All bytes; this is the file last seen from now on. Throws ErrorDoesNotExist only
     * when nothing bears the name, CatalogueUnusableError when it can't be read for now.
     */
    QByteArray read();

    /**
     * All bytes, for a look at what is not the file last seen: that one stays what it was.
     * Throws as read().
     */
    QByteArray peek() const;

    /**
     * Replaces the file, which is the one last seen from now on. Makes its folder where
     * none was before, but not in the place of one that has gone: its drive will be back.
     * Throws CatalogueUnsavedError, and the file is as it was, or holds all of @p bytes.
     */
    void write(const QByteArray &bytes);

    /** The file that was last read or written; of none before. */
    const FileStamp &lastSeen() const { return m_lastSeen; }

    /** Whether the file on the disk is the one that was last read or written. */
    bool isAsLastSeen() const;

    /** Whether it was modified later than the one that was last read or written. */
    bool isNewerThanLastSeen() const;

    /** Whether the program itself has last read or written these very bytes. */
    bool isLastSeen(const QByteArray &bytes) const;

    /** MD5 digest of the bytes last read or written; empty before. Waits until it is known. */
    QByteArray lastSeenHash() const;

    /** The same for those who can wait elsewhere; not valid before anything was seen. */
    std::shared_future<QByteArray> lastSeenDigest() const { return m_hash; }

    /**
     * Writes @p bytes to a new file beside the catalogue and returns its path. Bytes that
     * are kept already are not kept twice. Throws CatalogueUnsavedError.
     */
    QString keep(const QByteArray &bytes, Fate fate) const;

private:
    void see(const FileStamp &stamp, const QByteArray &bytes);
    void requireFolder() const;

    QString m_path;
    FileStamp m_lastSeen;
    FileStamp m_folder;
    std::shared_future<QByteArray> m_hash;
};
