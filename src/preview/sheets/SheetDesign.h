#pragma once

#include <QList>
#include <QSharedPointer>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVector>

class IFile;

/** What a sheet is told of a design beforehand; the stitches come from its file. */
struct SheetDesign
{
    /** Absolute. */
    QString path;
    /** Bytes; 0 where not known. */
    qint64 fileSize = 0;
    /** A picture that stands in where the file cannot be read; empty when there is none. */
    QString previewPath;
    QStringList tags;
    QString notes;
    bool isFavorite = false;

    // As the catalogue has them, for files that cannot be read.
    /** Millimetres; -1 x -1 when not known. */
    QSizeF size{-1, -1};
    int stitches = 0;
    int colors = 0;

    QString fileName() const;
    QString folder() const { return folderOf(path); }

    /** Where a file lies. */
    static QString folderOf(const QString &path);

    /** A record of the catalogue. Main thread only. */
    static SheetDesign of(const IFile &file);
    static QVector<SheetDesign> of(const QList<QSharedPointer<IFile>> &files);
    /** A file that the catalogue does not know. */
    static SheetDesign of(const QString &path);
};
