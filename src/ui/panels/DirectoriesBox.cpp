#include "ui/panels/DirectoriesBox.h"

#include "catalogue/folders/DirectoryModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/records/Project.h"
#include "widgets/controls/DragDropHelper.h"
#include "widgets/controls/GTreeView.h"
#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"

#include <QDragEnterEvent>
#include <QIcon>
#include <QVBoxLayout>

DirectoriesBox::DirectoriesBox(QWidget *parent, const QSharedPointer<Project> &project,
                               IFilterModel *filter)
    : GSideBarBox(tr("Folders"), parent), m_project(project),
      m_model(std::make_unique<DirectoryModel>(project)), m_tree(new GTreeView(this)),
      m_filter(filter), m_dropHelper(new DragDropHelper(this, DragDropHelper::Directories))
{
    setObjectName(QStringLiteral("DirectoriesBox"));
    setExpandable(false);
    initTree();
    connect(m_dropHelper, &DragDropHelper::filesDropped, this, &DirectoriesBox::filesDropped);
    connect(m_dropHelper, &DragDropHelper::dragActiveChanged, m_tree,
            &GTreeView::setDropHighlighted);
    connect(m_filter, &IFilterModel::directoryFilterChanged, this,
            &DirectoriesBox::onDirectoryFilterChanged);
    m_project->filesProp()->registerObserver(this);
    m_project->smartFoldersProp()->registerObserver(this);
}

DirectoriesBox::~DirectoriesBox() = default;

void DirectoriesBox::initTree()
{
    m_model->refresh();
    m_tree->setModel(m_model.get());
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setHeaderHidden(true);
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setAccessibleName(tr("Folders"));
    m_tree->expandToDepth(0);
    updatePlaceholder();
    contentLayout()->addWidget(m_tree);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DirectoriesBox::onItemSelectionChanged);
}

void DirectoriesBox::updatePlaceholder()
{
    const bool dark = WidgetHelper::isDarkMode();
    const QIcon icon(dark ? QStringLiteral(":/treeview-empty.dark.svg")
                          : QStringLiteral(":/treeview-empty.svg"));
    m_tree->setPlaceholder(icon,
                           tr("<center>Drag & drop<br/>the folder<br/>containing your<br/>"
                              "embroidery files<br/>here.</center>"),
                           dark ? WidgetStyles::Primary50 : WidgetStyles::Primary900);
}

void DirectoriesBox::observedObjectChanged(const Observable *)
{
    m_model->refresh();
    m_tree->expandToDepth(0);
    // The tree is a new one; the folder that is being shown stays the selected one.
    onDirectoryFilterChanged(m_filter->directoryFilter());
}

void DirectoriesBox::onItemSelectionChanged()
{
    const QModelIndexList rows = m_tree->selectionModel()->selectedRows();
    m_filter->setDirectory(rows.isEmpty() ? QString() : m_model->absoluteFilePath(rows.first()));
}

void DirectoriesBox::onDirectoryFilterChanged(const QString &path)
{
    const QModelIndex index = m_model->indexForPath(path);
    if (!index.isValid())
        return;
    m_tree->scrollTo(index);
    m_tree->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

void DirectoriesBox::showAllFolders()
{
    m_tree->clearSelection();
    // Nothing was selected where the tree does not have the folder.
    m_filter->setDirectory(QString());
}

void DirectoriesBox::dragEnterEvent(QDragEnterEvent *event)
{
    m_dropHelper->dragEnterEvent(event);
}

void DirectoriesBox::dragMoveEvent(QDragMoveEvent *event)
{
    m_dropHelper->dragMoveEvent(event);
}

void DirectoriesBox::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_dropHelper->dragLeaveEvent(event);
}

void DirectoriesBox::dropEvent(QDropEvent *event)
{
    m_dropHelper->dropEvent(event);
}

void DirectoriesBox::changeEvent(QEvent *event)
{
    GSideBarBox::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updatePlaceholder();
}
