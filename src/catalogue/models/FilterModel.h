#pragma once

#include "catalogue/models/IFilterModel.h"
#include "catalogue/query/DuplicateIndex.h"
#include "catalogue/query/Query.h"
#include "properties/changes/Observer.h"

#include <QHash>
#include <QSet>

class Project;

/**
 * Watches the file list and the path, tags and size of each record. A change of one
 * record costs one test, a change of the filter one pass over all of them.
 */
class FilterModel : public IFilterModel, public Observer
{
    Q_OBJECT

public:
    explicit FilterModel(const QSharedPointer<Project> &project);

    void setDirectory(const QString &path) override;
    void setTag(const QString &tag) override;
    void setFileType(const QString &type) override;
    void setMaxDesignSize(const QSizeF &size) override;
    void setSearchSubstring(const QString &text) override;
    void setFavoritesOnly(bool favoritesOnly) override;
    void refreshFilter() override;

    QString directoryFilter() const override { return m_directoryFilter; }
    QString tagFilter() const override { return m_tagFilter; }
    QList<QSharedPointer<IFile>> filteredFiles() const override;
    QString searchText() const override { return m_searchText; }
    std::optional<QueryRemark> searchRemark() const override { return m_searchRemark; }
    void setSortOrder(const SortOrder &order) override;
    SortOrder sortOrder() const override { return m_sortOrder; }

    void observedObjectChanged(const Observable *observable) override;

private:
    void watchFiles();
    void forgetOrder();
    bool matchesFilter(const QSharedPointer<IFile> &file) const;
    void updateFilterListForAllFilesAndEmitChange();
    void updateFilterListForSingleFileAndEmitChange(const Observable *property);
    bool updateFilterListForSingleFile(const Observable *property);
    const QList<QSharedPointer<IFile>> &orderedFiles() const;

    QSharedPointer<Project> m_project;
    QString m_directoryFilter;
    QString m_tagFilter;
    QString m_fileType;
    QString m_searchText;
    std::optional<QueryRemark> m_searchRemark;
    /** The last one without a mistake. */
    Query m_query;
    DuplicateIndex m_duplicates;
    QSizeF m_maxDesignSize{-1, -1};
    bool m_favoritesOnly = false;
    QSet<QSharedPointer<IFile>> m_filteredSet;
    QHash<const Observable *, QSharedPointer<IFile>> m_observedProperties;
    QList<QSharedPointer<IFile>> m_watchedFiles;

    SortOrder m_sortOrder;

    // Put in order only when somebody asks after a change.
    mutable QList<QSharedPointer<IFile>> m_filesByName;
    mutable bool m_nameOrderIsValid = false;
    mutable QList<QSharedPointer<IFile>> m_orderedFiles;
    mutable bool m_orderIsValid = false;
    mutable QList<QSharedPointer<IFile>> m_filteredFiles;
    mutable bool m_filteredFilesAreValid = false;
};
