#pragma once

#include "catalogue/records/IFile.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QSizeF>
#include <QString>

/** Decides which designs of the catalogue are shown. Main thread only. */
class IFilterModel : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /** Only designs whose path begins with @p path; empty for all. */
    virtual void setDirectory(const QString &path) = 0;

    /** Only designs with this tag; empty for all. */
    virtual void setTag(const QString &tag) = 0;

    /** Only designs of this suffix, given without dot in any case; empty for all. */
    virtual void setFileType(const QString &type) = 0;

    /** Only designs not wider and not higher, in millimetres; negative for no limit. */
    virtual void setMaxDesignSize(const QSizeF &size) = 0;

    /**
     * Only designs whose base name or notes hold @p text in any case; up to two
     * characters must stand as a whole word.
     */
    virtual void setSearchSubstring(const QString &text) = 0;

    virtual void setFavoritesOnly(bool favoritesOnly) = 0;

    /** Judges all designs anew: changes of notes and favourite flags aren't noticed. */
    virtual void refreshFilter() = 0;

    virtual QString directoryFilter() const = 0;
    virtual QString tagFilter() const = 0;

    /** The designs that pass, in natural order of their paths. */
    virtual QList<QSharedPointer<IFile>> filteredFiles() const = 0;

signals:
    /** The set of designs that pass has changed to @p files, in order. */
    void filterChanged(QList<QSharedPointer<IFile>> files);

    /** Comes after filterChanged(). */
    void directoryFilterChanged(const QString &path);
    void tagFilterChanged(const QString &tag);
};
