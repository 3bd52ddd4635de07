#pragma once

#include "drives/TransferResult.h"

#include <functional>
#include <QString>

class QFile;
class FileReplacement;

/**
 * Copies files flat into the root of a drive, and sees to it that they are on the drive
 * rather than in the memory of the system. A file of the same name keeps its old content
 * until all of the new one is there. Nothing is thrown. It waits for the drive; any thread.
 */
class DriveTransfer
{
public:
    /** Told of the bytes of each piece that was copied; false breaks the copying off. */
    using Told = std::function<bool(qint64 bytes)>;

    /**
     * @param target root path of the mounted drive
     * @param device what stat() told of the drive when the user chose it; with another one, or
     *     none, in its place nothing is copied. 0 takes the drive that is there now.
     */
    DriveTransfer(const QString &target, quint64 device);
    ~DriveTransfer();

    DriveTransfer(const DriveTransfer &) = delete;
    DriveTransfer &operator=(const DriveTransfer &) = delete;

    /**
     * Copies @p source as it is, replacing a file of that name. A source that is that very
     * file on the drive is left alone.
     * @return what was in the way
     */
    TransferResult::Reason copy(const QString &source, const Told &told);

    /** Waits until all that was copied is on the drive. */
    TransferResult::Reason flush();

    /** The system's own words for the last failure, where it has given some. */
    QString systemText() const { return m_systemText; }

private:
    bool isDriveThere() const;
    bool holds(const QString &name, const QString &source) const;
    void liftProtection(const QString &name) const;
    TransferResult::Reason replace(QFile &source, const QString &name, const Told &told);
    TransferResult::Reason sourceReason(const QFile &source);
    TransferResult::Reason driveReason(const FileReplacement &file, qint64 size);

    QString m_target;
    /**
     * The root of the drive, open from the first question on: what is written through it never
     * goes into the folder that a pulled drive leaves behind. Negative where it is not there.
     */
    int m_root;
    quint64 m_device;
    QString m_systemText;
};
