#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/**
 * One file on its way to the disk: the bytes go into a new file beside the target,
 * which takes the target's place only when all of them lie safely on the disk.
 * Whatever fails, and wherever the process dies, the target is whole: the old bytes
 * or the new ones. Any thread.
 *
 * A name that is a symbolic link stays one; what it points to is replaced. A device
 * or a pipe cannot be replaced and is written to.
 */
class FileReplacement
{
public:
    enum Durability {
        Durable,     ///< also the power may fail once commit() has returned
        UntilRestart ///< spares the wait for the disk: for what can be made anew
    };
    enum Access {
        AsBefore, ///< that of the file replaced; of a new file what the user's mask allows
        Private   ///< for the user alone, also where the file replaced was open to others
    };

    /** @param path absolute or relative to the working folder; its folder must be there */
    FileReplacement(const QString &path, Access access);
    /**
     * The file @p name of the folder that is open as @p folder, which stays the caller's. It
     * goes into that folder and no other, whatever has come to lie at the folder's path since;
     * a symbolic link of that name is replaced itself.
     */
    FileReplacement(int folder, const QString &name, Access access);
    /** Takes back what was not committed. */
    ~FileReplacement();

    FileReplacement(const FileReplacement &) = delete;
    FileReplacement &operator=(const FileReplacement &) = delete;

    /** False when a byte could not be written; errorString() then tells why. */
    bool write(const QByteArray &data);

    /** False when the target was not replaced, or not safely; errorString() tells why. */
    bool commit(Durability durability);

    /** The system's own words for the first failure. */
    QString errorString() const { return m_error; }

    /** The system's number for the first failure, as in errno; 0 when all went well. */
    int errorCode() const { return m_errorCode; }

    /**
     * Removes what writers that died have left in @p directory. Files of writers that
     * still live stay.
     */
    static void removeLeftovers(const QString &directory);
    /** Likewise; @param names of the files there, for who has listed them anyway */
    static void removeLeftovers(const QString &directory, const QVector<QByteArray> &names);

private:
    bool open(Access access);
    bool fail();
    bool sync();
    bool closeFile();
    bool replaceTarget();
    bool syncDirectory();

    int m_folder; ///< what the two names are relative to
    QByteArray m_target;
    QByteArray m_temporary;
    int m_descriptor = -1;
    QString m_error;
    int m_errorCode = 0;
};
