#include "catalogue/models/FilterModel.h"

#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Project.h"
#include "properties/changes/ChangeManager.h"

FilterModel::FilterModel(const QSharedPointer<Project> &project) : m_project(project)
{
    m_project->filesProp()->registerObserver(this);
    watchFiles();
    updateFilterListForAllFilesAndEmitChange();
}

void FilterModel::setDirectory(const QString &path)
{
    if (path == m_directoryFilter)
        return;
    m_directoryFilter = path;
    updateFilterListForAllFilesAndEmitChange();
    emit directoryFilterChanged(path);
}

void FilterModel::setTag(const QString &tag)
{
    if (tag == m_tagFilter)
        return;
    m_tagFilter = tag;
    updateFilterListForAllFilesAndEmitChange();
    emit tagFilterChanged(tag);
}

void FilterModel::setFileType(const QString &type)
{
    m_fileType = type.toLower();
    updateFilterListForAllFilesAndEmitChange();
}

void FilterModel::setMaxDesignSize(const QSizeF &size)
{
    m_maxDesignSize = size;
    updateFilterListForAllFilesAndEmitChange();
}

void FilterModel::setSearchSubstring(const QString &text)
{
    const Query query = Query::parse(text);
    const bool changed = text != m_searchText;
    m_searchText = text;
    m_searchRemark = query.remark();
    if (query.isValid()) {
        m_query = query;
        updateFilterListForAllFilesAndEmitChange();
    }
    if (changed)
        emit searchTextChanged(text);
}

void FilterModel::setFavoritesOnly(bool favoritesOnly)
{
    m_favoritesOnly = favoritesOnly;
    updateFilterListForAllFilesAndEmitChange();
}

void FilterModel::setSortOrder(const SortOrder &order)
{
    if (order == m_sortOrder)
        return;
    m_sortOrder = order;
    m_orderIsValid = false;
    updateFilterListForAllFilesAndEmitChange();
}

void FilterModel::refreshFilter()
{
    observedObjectChanged(m_project->filesProp());
}

QList<QSharedPointer<IFile>> FilterModel::filteredFiles() const
{
    if (m_filteredFilesAreValid)
        return m_filteredFiles;
    m_filteredFiles.clear();
    m_filteredFiles.reserve(m_filteredSet.count());
    for (const QSharedPointer<IFile> &file : orderedFiles()) {
        if (m_filteredSet.contains(file))
            m_filteredFiles.append(file);
    }
    m_filteredFilesAreValid = true;
    return m_filteredFiles;
}

const QList<QSharedPointer<IFile>> &FilterModel::orderedFiles() const
{
    if (!m_nameOrderIsValid) {
        m_filesByName = m_watchedFiles;
        LocaleAwareFunctions::sort(m_filesByName);
        m_nameOrderIsValid = true;
    }
    if (!m_orderIsValid) {
        m_orderedFiles = m_sortOrder.sorted(m_filesByName);
        m_orderIsValid = true;
    }
    return m_orderedFiles;
}

void FilterModel::forgetOrder()
{
    m_nameOrderIsValid = false;
    m_orderIsValid = false;
    m_filteredFilesAreValid = false;
}

void FilterModel::observedObjectChanged(const Observable *observable)
{
    if (observable == m_project->filesProp()) {
        watchFiles();
        // What was read anew isn't where it belongs any more; the names are watched.
        m_orderIsValid = false;
        updateFilterListForAllFilesAndEmitChange();
        return;
    }
    updateFilterListForSingleFileAndEmitChange(observable);
}

void FilterModel::watchFiles()
{
    const QList<QSharedPointer<IFile>> files = m_project->files();
    // Counts anew: the contents may have changed.
    m_duplicates.setFiles(files);
    if (files == m_watchedFiles)
        return;
    m_watchedFiles = files;
    forgetOrder();
    m_observedProperties.clear();
    m_observedProperties.reserve(3 * files.count());
    for (const QSharedPointer<IFile> &file : files) {
        const std::initializer_list<const Observable *> watched = {
            file->absoluteFilePathProp(), file->tagsProp(), file->designSizeProp()};
        for (const Observable *property : watched) {
            property->registerObserver(this);
            m_observedProperties.insert(property, file);
        }
    }
}

bool FilterModel::matchesFilter(const QSharedPointer<IFile> &file) const
{
    const QString path = file->absoluteFilePath();
    if (!m_directoryFilter.isEmpty() && !path.startsWith(m_directoryFilter))
        return false;
    if (m_favoritesOnly && !file->isFavorite())
        return false;
    if (!m_tagFilter.isEmpty() && !file->tags().contains(m_tagFilter))
        return false;
    if (!m_fileType.isEmpty() && !path.toLower().endsWith(QLatin1Char('.') + m_fileType))
        return false;
    const QSizeF size = file->designSize();
    if (m_maxDesignSize.width() >= 0 && size.width() > m_maxDesignSize.width())
        return false;
    if (m_maxDesignSize.height() >= 0 && size.height() > m_maxDesignSize.height())
        return false;
    return m_query.matches(*file, m_duplicates);
}

void FilterModel::updateFilterListForAllFilesAndEmitChange()
{
    QList<QSharedPointer<IFile>> matching;
    for (const QSharedPointer<IFile> &file : orderedFiles()) {
        if (matchesFilter(file))
            matching.append(file);
    }
    if (matching == filteredFiles() && matching.count() == m_filteredSet.count())
        return;
    m_filteredSet = QSet<QSharedPointer<IFile>>(matching.cbegin(), matching.cend());
    m_filteredFiles = matching;
    m_filteredFilesAreValid = true;
    emit filterChanged(matching);
}

void FilterModel::updateFilterListForSingleFileAndEmitChange(const Observable *property)
{
    if (!updateFilterListForSingleFile(property))
        return;
    // What changed together is told together: each time costs the views a look at all designs.
    const QVector<const Observable *> pending = ChangeManager::instance().pendingAnnouncements();
    for (const Observable *other : pending)
        updateFilterListForSingleFile(other);
    emit filterChanged(filteredFiles());
}

bool FilterModel::updateFilterListForSingleFile(const Observable *property)
{
    const QSharedPointer<IFile> file = m_observedProperties.value(property);
    if (!file)
        return false;
    if (property == file->absoluteFilePathProp())
        forgetOrder();
    const bool wasIn = m_filteredSet.contains(file);
    const bool isIn = matchesFilter(file);
    if (wasIn == isIn)
        return false;
    if (isIn)
        m_filteredSet.insert(file);
    else
        m_filteredSet.remove(file);
    m_filteredFilesAreValid = false;
    return true;
}
