#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/** One mounted file system, as the system's own table has it. */
struct Mount
{
    QString path; ///< where it is mounted, absolute, without a "/" at its end
    QString fileSystemType;
    QString source;     ///< what is mounted there, "/dev/sdb1" for instance
    quint64 device = 0; ///< what stat() tells of all that lies on it; 0 where that is not known
    quint64 id = 0;     ///< tells two mounts at one place after another apart; 0 where not known

    bool operator==(const Mount &other) const;
};

/**
 * What is mounted where. The table is the system's own: reading it asks nothing of the
 * drives themselves, since a dead one gives no answer and does not let go of whoever asks
 * it. Any thread.
 */
class MountTable
{
public:
    /** In the order of the system; of two at the same place the upper one. */
    static QList<Mount> mounts();

    /** The same out of @p table, which has the form of Linux' /proc/self/mountinfo. */
    static QList<Mount> parse(const QByteArray &table);

    /**
     * The one of @p mounts that holds @p path, going by its name alone: links are not
     * followed. An empty one where there is none.
     */
    static Mount holding(const QString &path, const QList<Mount> &mounts);
};
