#pragma once

#include "catalogue/models/IFilterModel.h"
#include "catalogue/query/DuplicateIndex.h"
#include "catalogue/query/Query.h"
#include "properties/changes/Observer.h"

#include <QHash>
#include <vector>

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
    /** Where its values lie. A search of all records takes as long as the memory makes it wait. */
    struct Place
    {
        QString path;
        const PropertyString *notes;
    };

    void watchFiles();
    void forgetOrder();
    bool matchesFilter(int index) const;
    void updateFilterListForAllFilesAndEmitChange();
    void updateFilterListForSingleFileAndEmitChange(const Observable *property);
    bool updateFilterListForSingleFile(const Observable *property);
    void putInOrder() const;
    QList<QSharedPointer<IFile>> matchingFiles() const;

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
    QList<QSharedPointer<IFile>> m_watchedFiles;
    std::vector<Place> m_places;                         ///< parallel to m_watchedFiles
    std::vector<bool> m_matches;                         ///< parallel to m_watchedFiles
    QHash<const Observable *, int> m_observedProperties; ///< indexes in m_watchedFiles

    SortOrder m_sortOrder;

    // Put in order only when somebody asks after a change.
    mutable QList<QSharedPointer<IFile>> m_filesByName;
    mutable std::vector<int> m_nameOrder; ///< likewise, as indexes in m_watchedFiles
    mutable bool m_nameOrderIsValid = false;
    mutable QList<QSharedPointer<IFile>> m_orderedFiles;
    mutable std::vector<int> m_order; ///< indexes in m_watchedFiles, parallel to m_orderedFiles
    mutable bool m_orderIsValid = false;
    mutable QList<QSharedPointer<IFile>> m_filteredFiles;
    mutable bool m_filteredFilesAreValid = false;
};
