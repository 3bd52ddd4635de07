#pragma once

#include <QString>
#include <QVector>

/** A file as the walk over its folder saw it. */
struct FoundFile
{
    QString path;
    qint64 size;     ///< bytes
    qint64 modified; ///< seconds since the epoch
};

/** What a walk could not look into. */
struct SkippedEntry
{
    enum Kind {
        MissingFolder, ///< the folder to begin with is not there
        UnreadableFolder,
        UndecodableName, ///< a file or folder whose name is no text; shown as far as it is one
    };

    Kind kind;
    QString path;
    QString reason; ///< the system's own words; empty for a name
};

/** What a walk came upon, in its order. */
struct FoundFiles
{
    QVector<FoundFile> files;
    QVector<SkippedEntry> skipped;
};
