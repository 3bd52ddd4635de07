#include "ui/CenterView.h"

#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "catalogue/records/Project.h"
#include "preview/grid/PreviewBrowser.h"
#include "ui/design/DesignWindow.h"
#include "ui/EmptyHint.h"
#include "ui/panels/FilterBar.h"
#include "widgets/controls/DragDropHelper.h"
#include "widgets/controls/DropFrame.h"

#include <algorithm>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QSet>
#include <QVBoxLayout>

CenterView::CenterView(QWidget *parent, const QSharedPointer<Project> &project,
                       FilterSelectionModel *model, RememberedValues *values)
    : QWidget(parent), m_model(model), m_values(values),
      m_filterBar(new FilterBar(this, project, model->filter())),
      m_browser(new PreviewBrowser(this, project, model)),
      m_hint(new EmptyHint(m_browser, project, model->filter())),
      m_dropHelper(new DragDropHelper(this, DragDropHelper::Directories))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_filterBar);
    layout->addWidget(m_browser, 1);
    auto *frame = new DropFrame(this);

    connect(m_browser, &PreviewBrowser::openRequested, this, &CenterView::showInWindow);
    connect(m_hint, &EmptyHint::addFolderRequested, this, &CenterView::addFolderRequested);
    connect(m_hint, &EmptyHint::allDesignsRequested, this, &CenterView::showAllDesigns);
    connect(m_dropHelper, &DragDropHelper::filesDropped, this, &CenterView::filesDropped);
    connect(m_dropHelper, &DragDropHelper::dragActiveChanged, frame, &DropFrame::setVisible);
}

CenterView::~CenterView() = default;

void CenterView::dragEnterEvent(QDragEnterEvent *event)
{
    m_dropHelper->dragEnterEvent(event);
}

void CenterView::dragMoveEvent(QDragMoveEvent *event)
{
    m_dropHelper->dragMoveEvent(event);
}

void CenterView::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_dropHelper->dragLeaveEvent(event);
}

void CenterView::dropEvent(QDropEvent *event)
{
    m_dropHelper->dropEvent(event);
}

void CenterView::setScanning(bool scanning)
{
    m_hint->setSuspended(scanning);
}

void CenterView::showAllDesigns()
{
    m_filterBar->clear();
    m_model->filter()->setTag(QString());
    emit allFoldersRequested();
    m_browser->setFocus(Qt::OtherFocusReason);
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

void CenterView::showDesigns(const QList<QSharedPointer<IFile>> &designs)
{
    if (!showsAll(designs)) {
        const auto folderOf = [](const QSharedPointer<IFile> &file) {
            return QFileInfo(file->absoluteFilePath()).path();
        };
        const QString folder = folderOf(designs.constFirst());
        if (std::all_of(designs.begin(), designs.end(),
                        [&](const auto &file) { return folderOf(file) == folder; }))
            m_model->filter()->setDirectory(folder);
        else
            emit allFoldersRequested();
    }
    if (!showsAll(designs)) {
        m_filterBar->clear();
        m_model->filter()->setTag(QString());
    }
    m_model->selection()->setSelection(designs);
    m_browser->showSelection();
}

bool CenterView::showsAll(const QList<QSharedPointer<IFile>> &designs) const
{
    const auto shown = m_model->filter()->filteredFiles();
    const QSet<QSharedPointer<IFile>> set(shown.begin(), shown.end());
    return std::all_of(designs.begin(), designs.end(),
                       [&](const auto &design) { return set.contains(design); });
}

void CenterView::search()
{
    m_filterBar->search();
}

void CenterView::openDesign()
{
    m_browser->openCurrent();
}

void CenterView::showInWindow(const QSharedPointer<IFile> &file)
{
    if (!m_designWindow) {
        m_designWindow = std::make_unique<DesignWindow>(m_model->filter(), m_values);
        connect(m_designWindow.get(), &DesignWindow::designShown, m_browser,
                &PreviewBrowser::showDesign);
    }
    m_designWindow->open(file);
}
