#pragma once

#include "catalogue/models/SortOrder.h"
#include "catalogue/query/QueryRemark.h"
#include "catalogue/records/IFile.h"

#include <optional>
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
     * Only designs that match the query @p text; a plain one is looked for in the base
     * name and the notes. A text with a mistake leaves the designs as they are.
     */
    virtual void setSearchSubstring(const QString &text) = 0;

    virtual void setFavoritesOnly(bool favoritesOnly) = 0;

    /** Judges all designs anew: changes of notes and favourite flags aren't noticed. */
    virtual void refreshFilter() = 0;

    virtual QString directoryFilter() const = 0;
    virtual QString tagFilter() const = 0;

    /** The designs that pass, in the order that is set. */
    virtual QList<QSharedPointer<IFile>> filteredFiles() const = 0;

    /** The search as it was set last, also when it holds a mistake. */
    virtual QString searchText() const = 0;

    /** What is to be said about the search text. */
    virtual std::optional<QueryRemark> searchRemark() const = 0;

    /** By name when nothing else is set. */
    virtual void setSortOrder(const SortOrder &order) = 0;
    virtual SortOrder sortOrder() const = 0;

signals:
    /** The designs that pass, or their order, have changed to @p files. */
    void filterChanged(QList<QSharedPointer<IFile>> files);

    /** Comes after filterChanged(). */
    void directoryFilterChanged(const QString &path);
    void tagFilterChanged(const QString &tag);
    void searchTextChanged(const QString &text);
};
