#include "catalogue/models/SelectionModel.h"

#include "catalogue/records/Project.h"

#include <algorithm>
#include <iterator>
#include <QSet>

SelectionModel::SelectionModel(const QSharedPointer<Project> &project) : m_project(project)
{
    m_project->filesProp()->registerObserver(this);
}

void SelectionModel::setSelection(const QList<QSharedPointer<IFile>> &files)
{
    m_selection = files;
    emit selectionChanged(m_selection);
}

void SelectionModel::selectAll()
{
    setSelection(m_project->files());
}

void SelectionModel::clearSelection()
{
    setSelection({});
}

void SelectionModel::observedObjectChanged(const Observable *)
{
    if (m_selection.isEmpty())
        return;
    const QList<QSharedPointer<IFile>> files = m_project->files();
    const QSet<QSharedPointer<IFile>> present(files.begin(), files.end());
    QList<QSharedPointer<IFile>> left;
    std::copy_if(m_selection.cbegin(), m_selection.cend(), std::back_inserter(left),
                 [&present](const auto &file) { return present.contains(file); });
    if (left.count() < m_selection.count())
        setSelection(left);
}
