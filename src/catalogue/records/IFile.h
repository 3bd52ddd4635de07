#pragma once

#include "properties/core/PropertyValues.h"
#include "properties/lists/PropertyListT.h"

#include <QByteArray>
#include <QList>
#include <QSharedPointer>
#include <QSizeF>
#include <QString>
#include <QStringList>

class IThread;
class Thread;

/**
 * The catalogue's view of one design on the disk: facts read from the file, which
 * are set without undo, and what the user attached to it, which is undoable. Each
 * value has its property for those who want to listen to it. Main thread only.
 */
class IFile
{
public:
    /** Absolute path of the design file; the sort key of the file list. */
    virtual QString absoluteFilePath() const = 0;
    virtual void setAbsoluteFilePath(const QString &path) = 0;
    virtual PropertyString *absoluteFilePathProp() const = 0;

    /** Size of the file in bytes. */
    virtual int fileSize() const = 0;
    virtual void setFileSize(int size) = 0;
    virtual PropertyInt *fileSizeProp() const = 0;

    /** Modification time of the file in seconds since the epoch. */
    virtual unsigned int modificationDate() const = 0;
    virtual void setModificationDate(unsigned int seconds) = 0;
    virtual PropertyUnsignedInt *modificationDateProp() const = 0;

    /** The raw 16-byte MD5 digest of the file's bytes, or nothing. */
    virtual QByteArray contentHash() const = 0;
    virtual void setContentHash(const QByteArray &hash) = 0;
    virtual PropertyString *contentHashProp() const = 0;

    /** Name of the design. */
    virtual QString name() const = 0;
    virtual void setName(const QString &name) = 0;
    virtual PropertyString *nameProp() const = 0;

    /** Size of the stitched design in millimetres; -1 x -1 when it isn't known. */
    virtual QSizeF designSize() const = 0;
    virtual void setDesignSize(const QSizeF &size) = 0;
    virtual PropertySizeF *designSizeProp() const = 0;

    /** Number of stitches. */
    virtual int stitchCount() const = 0;
    virtual void setStitchCount(int count) = 0;
    virtual PropertyInt *stitchCountProp() const = 0;

    /** The thread colours in stitching order. */
    virtual QList<QSharedPointer<IThread>> threads() const = 0;
    virtual void setThreads(const QList<QSharedPointer<IThread>> &threads) = 0;
    virtual PropertyListT<Thread> *threadsProp() const = 0;

    /** The user's free text; undoable. */
    virtual QString notes() const = 0;
    virtual void setNotes(const QString &notes) = 0;
    virtual PropertyString *notesProp() const = 0;

    /** Tags of this design; undoable. */
    virtual QStringList tags() const = 0;
    virtual void setTags(const QStringList &tags) = 0;
    /** Adds a tag in sorted order, also when it is there already. */
    virtual void addTag(const QString &tag) = 0;
    virtual void removeTag(const QString &tag) = 0;
    virtual PropertyStringList *tagsProp() const = 0;

    /** Whether the user marked the design; undoable. */
    virtual bool isFavorite() const = 0;
    virtual void setFavorite(bool favorite) = 0;
    virtual PropertyBool *isFavoriteProp() const = 0;

    virtual ~IFile() = default;
};
