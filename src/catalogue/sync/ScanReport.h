#pragma once

#include "base/files/FoundFiles.h"
#include "catalogue/sync/UnreadableFile.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

/** What one synchronisation did, file by file, in the order in which it did it. */
struct ScanReport
{
    struct Move
    {
        QString from;
        QString to;
    };

    QStringList added;   ///< all that have a record now and had none before
    QStringList changed; ///< those known before whose content is another, or is read at last
    QVector<Move> moved;
    QStringList removed;
    QList<UnreadableFile> unreadable;
    /** Folders that could not be looked into, and names of folders and designs that are no text. */
    QVector<SkippedEntry> skipped;
    QStringList unreached; ///< of those added: not looked into, since the user stopped the run
    bool stopped = false;
};

Q_DECLARE_METATYPE(ScanReport)
