#pragma once

#include <QStorageInfo>
#include <QString>

/**
 * Copies files flat into the root of a drive, and sees to it that they are on
 * the drive rather than in the memory of the system. Nothing is thrown: a drive
 * that is full, write-protected or gone shows as a false result.
 */
class DriveTransfer
{
public:
    /**
     * @param target root path of the mounted drive
     * @param volume the drive as it was when the user chose it; with another one, or none, in
     *     its place nothing is copied
     */
    DriveTransfer(const QString &target, const QStorageInfo &volume);

    /**
     * Copies @p source as it is, replacing a file of that name. A source that is
     * that very file on the drive is left alone.
     */
    bool copy(const QString &source) const;

    /** Waits until all that was copied is on the drive. */
    bool flush() const;

private:
    bool isDriveThere() const;

    QString m_target;
    QStorageInfo m_volume;
};
