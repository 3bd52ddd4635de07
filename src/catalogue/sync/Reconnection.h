#pragma once

#include "base/files/FoundFiles.h"
#include "catalogue/records/IFile.h"
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QVector>

class IProgressAbortListener;
struct WorkerLimits;

/**
 * Finds the records of files that vanished among new files of the same content, so that
 * a file that was moved or renamed keeps its record. Only files of the size of a vanished
 * one are read, on several threads.
 */
class Reconnection
{
public:
    using Record = QSharedPointer<IFile>;

    struct Match
    {
        Record record;
        QString path; ///< where the file is now
    };

    /**
     * @param vanished records whose files are gone, in the catalogue's order
     * @param fresh files without a record, sorted by path
     */
    Reconnection(const QList<Record> &vanished, const QVector<FoundFile> &fresh);

    /**
     * The matches, in the order of the paths; none when the user asked for the end. Each
     * of several vanished files of one content gets a new file of its own: the one of
     * the same name, the others by path. Where there are fewer new files, records that
     * the user has worked on come first. When one vanished file turns up in several
     * places, its record is matched with each of them.
     */
    QVector<Match> find(IProgressAbortListener &listener, const WorkerLimits &limits) const;

private:
    QVector<FoundFile> candidates() const;

    QList<Record> m_vanished;
    QVector<FoundFile> m_fresh;
};
