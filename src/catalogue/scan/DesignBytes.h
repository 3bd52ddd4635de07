#pragma once

#include <QByteArray>
#include <QString>

class IAbortCheck;

/** The bytes of a design file as they lie on the disk, with what belongs to them. */
struct DesignBytes
{
    enum State {
        Read,
        TooLarge,  ///< more than any reader takes; the bytes were left where they are
        Unreadable ///< also when the reading was aborted
    };

    State state = Unreadable;
    QString reason;        ///< why it could not be read, in the system's words
    bool vanished = false; ///< it is not there any more
    QByteArray bytes;
    qint64 size = 0;     ///< of the file, in bytes
    qint64 modified = 0; ///< seconds since the epoch

    /** The raw 16-byte MD5 digest of the bytes. */
    QByteArray hash() const;

    /**
     * Reads a file as it is now. Any thread; asks now and then whether to stop.
     * @throws std::bad_alloc
     */
    static DesignBytes read(const QString &path, const IAbortCheck &abort);
};
