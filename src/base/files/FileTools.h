#pragma once

#include "base/files/FileReplacement.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/** Whole files and small file trees. Failures are thrown as Error. Any thread. */
class FileTools
{
    Q_DECLARE_TR_FUNCTIONS(FileTools)

public:
    enum OpenMode { Binary = 0, Text = 1 };

    /** All bytes of a file. Throws Error when it can't be opened or read. */
    static QByteArray readAll(const QString &path, OpenMode mode = Binary);

    /**
     * Replaces the file by @p data and makes its folder if that is missing. The old
     * file stays as it was until all bytes lie safely on the disk: a failure, which
     * throws Error, leaves it whole, and so does the end of the process.
     */
    static void writeAll(const QString &path, const QByteArray &data, OpenMode mode = Binary,
                         FileReplacement::Durability durability = FileReplacement::Durable,
                         FileReplacement::Access access = FileReplacement::AsBefore);

    /** Copies the bytes, through memory; neither date nor permissions. */
    static void copyFile(const QString &from, const QString &to);

    /** Copies every file that isn't hidden to the same place below @p to. */
    static void copyFilesRecursive(const QString &from, const QString &to);

    /** Removes a folder and all in it; links are removed, not followed. */
    static void removeDir(const QString &path);

    /** Makes an empty file if there is none, and sets its modification time to now. */
    static void touchFile(const QString &path);
    static void touchFiles(const QStringList &paths);

    /** Removes those of the files that are there. */
    static void deleteFiles(const QStringList &paths);

    /** The folder prefix, up to and with a "/", that all paths share; may be empty. */
    static QString longestCommonPathPrefix(const QStringList &paths);
};
