#include "preview/grid/PreviewBrowser.h"

#include "base/GlobalSettings.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "catalogue/records/Project.h"
#include "preview/cache/PreviewCache.h"
#include "preview/grid/GridGraphicsView.h"
#include "preview/grid/GridPlace.h"
#include "preview/grid/GridPreviewScene.h"
#include "preview/grid/PictureGround.h"
#include "preview/grid/PreviewSheet.h"
#include "widgets/controls/DesktopInteraction.h"
#include <algorithm>
#include <limits>
#include <QEvent>
#include <QFileInfo>
#include <QLineF>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>
#include <utility>

const QList<int> PreviewBrowser::ScaleFactors = {33, 50, 75, 100, 150, 200};

namespace {

constexpr int DefaultScaleFactor = 100;

QPixmap onGround(const QPixmap &preview, const QColor &ground)
{
    QPixmap picture(preview.size());
    picture.fill(ground);
    QPainter(&picture).drawPixmap(0, 0, preview);
    return picture;
}

} // namespace

PreviewBrowser::PreviewBrowser(QWidget *parent, QSharedPointer<Project> project,
                               FilterSelectionModel *models)
    : QWidget(parent), m_project(std::move(project)), m_models(models),
      m_view(new GridGraphicsView(this)), m_scene(new GridPreviewScene(this))
{
    m_view->setScene(m_scene);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    setFocusProxy(m_view);

    connectModels();
    m_project->filesProp()->registerObserver(this);
    filterChanged();
    readZoom();
}

PreviewBrowser::~PreviewBrowser()
{
    GlobalSettings().setGridScaleFactor(ScaleFactors.at(m_zoomIndex));
}

void PreviewBrowser::connectModels()
{
    connect(m_view, &GridGraphicsView::widthChanged, m_scene,
            &GridPreviewScene::setPreferredSceneWidth);
    connect(m_view, &EditorGraphicsView::zoomChanged, m_scene, &GridPreviewScene::setScaleFactor);
    connect(m_view, &EditorGraphicsView::zoomChanged, this, &PreviewBrowser::zoomChanged);
    connect(m_view, &GridGraphicsView::zoomInRequested, this, &PreviewBrowser::zoomIn);
    connect(m_view, &GridGraphicsView::zoomOutRequested, this, &PreviewBrowser::zoomOut);
    connect(m_view, &GridGraphicsView::openSelection, this, &PreviewBrowser::previewSelection);
    connect(m_view, &GridGraphicsView::openDesign, this, &PreviewBrowser::openCurrent);
    connect(m_scene, &GridPreviewScene::openRequested, this, &PreviewBrowser::openRequested);
    connect(m_view, &GridGraphicsView::toggleFavorites, this, &PreviewBrowser::toggleFavorites);
    connect(m_scene, &GridPreviewScene::filesSelected, m_models->selection(),
            &ISelectionModel::setSelection);
    connect(m_models->selection(), &ISelectionModel::selectionChanged, m_scene,
            &GridPreviewScene::selectFiles);
    connect(m_models->filter(), &IFilterModel::filterChanged, this, &PreviewBrowser::filterChanged);
    connect(m_models->filter(), &IFilterModel::directoryFilterChanged, this,
            &PreviewBrowser::directoryChanged);
}

void PreviewBrowser::readZoom()
{
    m_zoomIndex = ScaleFactors.indexOf(GlobalSettings().gridScaleFactor());
    if (m_zoomIndex < 0) {
        m_zoomIndex = ScaleFactors.indexOf(DefaultScaleFactor);
    }
    m_view->zoomTo(zoom());
}

double PreviewBrowser::zoom() const
{
    return ScaleFactors.at(m_zoomIndex) / 100.0;
}

void PreviewBrowser::observedObjectChanged(const Observable *observable)
{
    if (observable == m_project->filesProp()) {
        filterChanged();
    }
}

void PreviewBrowser::filterChanged()
{
    const GridPlace place(m_view);
    m_scene->setFiles(m_models->filter()->filteredFiles());
    place.restore(m_view);
}

int PreviewBrowser::zoomPercent() const
{
    return qRound(m_view->currentZoomValue() * 100.0);
}

void PreviewBrowser::zoomIn()
{
    setZoomIndex(std::min(m_zoomIndex + 1, int(ScaleFactors.size()) - 1));
}

void PreviewBrowser::zoomOut()
{
    setZoomIndex(std::max(m_zoomIndex - 1, 0));
}

void PreviewBrowser::zoomToDefault()
{
    setZoomIndex(ScaleFactors.indexOf(DefaultScaleFactor));
}

void PreviewBrowser::selectNone()
{
    m_scene->clearSelection();
}

void PreviewBrowser::setZoomIndex(int index)
{
    if (index != m_zoomIndex) {
        m_zoomIndex = index;
        updateZoomAndKeepSelectionVisible();
    }
}

void PreviewBrowser::showSelection()
{
    for (int i = 0; i < m_scene->count(); ++i) {
        if (m_scene->isSelected(i)) {
            m_view->goTo(i);
            break;
        }
    }
    m_view->setFocus(Qt::OtherFocusReason);
}

void PreviewBrowser::directoryChanged()
{
    QScrollBar *bar = m_view->verticalScrollBar();
    bar->setValue(bar->minimum());
}

void PreviewBrowser::updateZoomAndKeepSelectionVisible()
{
    const QPointF center = m_view->mapToScene(m_view->viewport()->rect().center());
    // Of many cards the one that the user is looking at.
    int nearest = -1;
    double distance = std::numeric_limits<double>::infinity();
    for (int i = 0; i < m_scene->count(); ++i) {
        if (m_scene->isSelected(i)) {
            const QPointF card = m_scene->sheetLayout().rectOf(i).center();
            const double length = QLineF(center, card).length();
            if (length < distance) {
                nearest = i;
                distance = length;
            }
        }
    }
    m_view->zoomTo(zoom());
    if (nearest >= 0) {
        m_view->centerOn(m_scene->sheetLayout().rectOf(nearest).center());
    }
}

void PreviewBrowser::previewSelection()
{
    const QList<QSharedPointer<IFile>> files = m_models->selection()->selectedFiles();
    if (files.size() == 1) {
        const QPixmap preview = PreviewCache::instance().previewImage(files.first(), nullptr);
        PreviewSheet(this, onGround(preview, PictureGround::of(*files.first())),
                     QFileInfo(files.first()->absoluteFilePath()).fileName())
            .exec();
    }
}

QSharedPointer<IFile> PreviewBrowser::currentFile() const
{
    if (m_scene->currentIndex() >= 0) {
        return m_scene->fileAt(m_scene->currentIndex());
    }
    return m_models->selection()->selectedFiles().value(0);
}

void PreviewBrowser::openCurrent()
{
    if (const QSharedPointer<IFile> file = currentFile()) {
        emit openRequested(file);
    }
}

void PreviewBrowser::revealCurrent()
{
    if (const QSharedPointer<IFile> file = currentFile()) {
        DesktopInteraction::revealInFinder(file->absoluteFilePath());
    }
}

void PreviewBrowser::showDesign(const QSharedPointer<IFile> &file)
{
    const int index = m_scene->indexOf(file);
    if (index < 0) {
        return;
    }
    const bool several = m_models->selection()->selectedFiles().size() > 1;
    m_view->showCard(index);
    m_scene->moveTo(index,
                    several ? GridPreviewScene::SelectNothing : GridPreviewScene::SelectCard);
}

void PreviewBrowser::toggleFavorites()
{
    const QList<QSharedPointer<IFile>> files = m_models->selection()->selectedFiles();
    const auto isFavorite = [](const QSharedPointer<IFile> &file) { return file->isFavorite(); };
    const bool mark = !std::all_of(files.begin(), files.end(), isFavorite);
    if (files.isEmpty()) {
        return;
    }
    const MacroBlock macro = m_project->undoStack()->createMacroBlock(
        mark ? QStringLiteral("mark as favorite") : QStringLiteral("clear favorite flag"));
    for (const QSharedPointer<IFile> &file : files) {
        file->setFavorite(mark);
    }
}

void PreviewBrowser::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange) {
        // The labels are as high as the font is.
        m_scene->setScaleFactor(m_view->currentZoomValue());
    }
}
