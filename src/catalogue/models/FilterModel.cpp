#include "catalogue/models/FilterModel.h"

#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Project.h"
#include "properties/changes/ChangeManager.h"

#include <algorithm>

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
    if (!m_filteredFilesAreValid) {
        m_filteredFiles = matchingFiles();
        m_filteredFilesAreValid = true;
    }
    return m_filteredFiles;
}

QList<QSharedPointer<IFile>> FilterModel::matchingFiles() const
{
    putInOrder();
    const auto count = std::count(m_matches.begin(), m_matches.end(), true);
    if (count == m_orderedFiles.count())
        return m_orderedFiles;
    QList<QSharedPointer<IFile>> matching;
    matching.reserve(int(count));
    for (std::size_t i = 0; i < m_order.size(); ++i) {
        if (m_matches[std::size_t(m_order[i])])
            matching.append(m_orderedFiles.at(int(i)));
    }
    return matching;
}

void FilterModel::putInOrder() const
{
    if (!m_nameOrderIsValid) {
        m_filesByName = m_watchedFiles;
        LocaleAwareFunctions::sort(m_filesByName);
        QHash<const IFile *, int> indexes;
        indexes.reserve(m_watchedFiles.count());
        for (int i = 0; i < m_watchedFiles.count(); ++i)
            indexes.insert(m_watchedFiles.at(i).data(), i);
        m_nameOrder.clear();
        for (const QSharedPointer<IFile> &file : qAsConst(m_filesByName))
            m_nameOrder.push_back(indexes.value(file.data()));
        m_nameOrderIsValid = true;
        m_orderIsValid = false;
    }
    if (m_orderIsValid)
        return;
    m_order = m_sortOrder.order(m_filesByName);
    m_orderedFiles.clear();
    m_orderedFiles.reserve(m_filesByName.count());
    for (int &index : m_order) {
        m_orderedFiles.append(m_filesByName.at(index));
        index = m_nameOrder[std::size_t(index)];
    }
    m_orderIsValid = true;
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
    m_matches.assign(std::size_t(files.count()), false);
    m_places.clear();
    m_places.reserve(std::size_t(files.count()));
    m_observedProperties.clear();
    m_observedProperties.reserve(3 * files.count());
    for (int i = 0; i < files.count(); ++i) {
        const QSharedPointer<IFile> &file = files.at(i);
        m_places.push_back({file->absoluteFilePath(), file->notesProp()});
        const std::initializer_list<const Observable *> watched = {
            file->absoluteFilePathProp(), file->tagsProp(), file->designSizeProp()};
        for (const Observable *property : watched) {
            property->registerObserver(this);
            m_observedProperties.insert(property, i);
        }
    }
}

bool FilterModel::matchesFilter(int index) const
{
    // Each look at a value may have to wait for the memory: only at those that are asked for.
    const Place &place = m_places[std::size_t(index)];
    if (!m_directoryFilter.isEmpty() && !place.path.startsWith(m_directoryFilter))
        return false;
    const IFile &file = *m_watchedFiles.at(index);
    if (m_favoritesOnly && !file.isFavorite())
        return false;
    if (!m_tagFilter.isEmpty() && !file.tags().contains(m_tagFilter))
        return false;
    if (!m_fileType.isEmpty() && !place.path.toLower().endsWith(QLatin1Char('.') + m_fileType))
        return false;
    if (m_maxDesignSize.width() >= 0 && file.designSize().width() > m_maxDesignSize.width())
        return false;
    if (m_maxDesignSize.height() >= 0 && file.designSize().height() > m_maxDesignSize.height())
        return false;
    if (const auto &plain = m_query.plainText())
        return plain->matches(place.path, place.notes->value());
    return m_query.matches(file, m_duplicates);
}

void FilterModel::updateFilterListForAllFilesAndEmitChange()
{
    for (int i = 0; i < m_watchedFiles.count(); ++i)
        m_matches[std::size_t(i)] = matchesFilter(i);
    const QList<QSharedPointer<IFile>> matching = matchingFiles();
    const bool changed = matching != m_filteredFiles;
    m_filteredFiles = matching;
    m_filteredFilesAreValid = true;
    if (changed)
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
    const auto found = m_observedProperties.constFind(property);
    if (found == m_observedProperties.cend())
        return false;
    const IFile &file = *m_watchedFiles.at(*found);
    const auto index = std::size_t(*found);
    if (property == file.absoluteFilePathProp()) {
        m_places[index].path = file.absoluteFilePath();
        forgetOrder();
    }
    const bool isIn = matchesFilter(*found);
    if (m_matches[index] == isIn)
        return false;
    m_matches[index] = isIn;
    m_filteredFilesAreValid = false;
    return true;
}
