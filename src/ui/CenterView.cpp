#include "ui/CenterView.h"

#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "catalogue/records/Project.h"
#include "preview/grid/PreviewBrowser.h"
#include "ui/panels/FilterBar.h"

#include <QVBoxLayout>

CenterView::CenterView(QWidget *parent, const QSharedPointer<Project> &project,
                       FilterSelectionModel *model)
    : QWidget(parent), m_model(model), m_browser(new PreviewBrowser(this, project, model))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(new FilterBar(this, project, model->filter()));
    layout->addWidget(m_browser, 1);
}

void CenterView::zoomIn()
{
    m_browser->zoomIn();
}

void CenterView::zoomOut()
{
    m_browser->zoomOut();
}

void CenterView::selectAll()
{
    m_model->selection()->setSelection(m_model->filter()->filteredFiles());
}
