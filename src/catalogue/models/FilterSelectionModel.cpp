#include "catalogue/models/FilterSelectionModel.h"

#include "catalogue/models/FilterModel.h"
#include "catalogue/models/SelectionModel.h"

FilterSelectionModel::FilterSelectionModel(const QSharedPointer<Project> &project)
    : m_selection(std::make_unique<SelectionModel>(project)),
      m_filter(std::make_unique<FilterModel>(project))
{
}

FilterSelectionModel::~FilterSelectionModel() = default;
