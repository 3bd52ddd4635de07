#pragma once

#include <QByteArray>
#include <QString>

/**
 * A lock between processes on a file, taken with flock(2): the kernel takes it away from
 * a holder that ends, however it ends. Only the lock counts; what the file holds is for
 * telling people who has it, and a file that is empty, cut or of somebody else locks
 * nobody out. Not to be shared between threads.
 */
class FileLock
{
public:
    enum Outcome {
        Held,        ///< this object has it, now or from before
        HeldByOther, ///< another object, of this process or of another one
        Unavailable  ///< the file cannot be made, or its file system knows no locks
    };

    /** Who says in the file to have the lock. */
    struct Holder
    {
        qint64 pid = 0;  ///< 0 when it is not known
        QString program; ///< empty when it is not known
    };

    /**
     * Touches no file.
     * @param path its folder must be there when the lock is taken; not followed if it is a link
     * @param program names the holder in the file
     */
    FileLock(const QString &path, const QString &program);
    /** Gives the lock back; the file stays. */
    ~FileLock();

    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

    /** Never waits. That it is unavailable stands in the log once. */
    Outcome tryLock();

    void unlock();

    /** Gives the lock back and takes the file away. Nothing happens when it is not held. */
    void unlockAndRemove();

    bool isHeld() const { return m_descriptor >= 0; }

    /** Read anew from the file. */
    Holder holder() const;

private:
    bool openFile();
    bool namesOpenFile() const;
    void writeHolder();
    Outcome unavailable();

    QByteArray m_path;
    QString m_program;
    int m_descriptor = -1;
    bool m_toldUnavailable = false;
};
