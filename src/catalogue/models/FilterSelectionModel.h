#pragma once

#include <memory>
#include <QSharedPointer>

class IFilterModel;
class ISelectionModel;
class Project;

/** The filter and the selection over one catalogue. */
class FilterSelectionModel
{
public:
    explicit FilterSelectionModel(const QSharedPointer<Project> &project);
    ~FilterSelectionModel();

    /** Both live as long as this object. */
    ISelectionModel *selection() const { return m_selection.get(); }
    IFilterModel *filter() const { return m_filter.get(); }

private:
    Q_DISABLE_COPY(FilterSelectionModel)

    std::unique_ptr<ISelectionModel> m_selection;
    std::unique_ptr<IFilterModel> m_filter;
};
