#include "preview/grid/GridGraphicsView.h"

#include "preview/cache/PreviewCache.h"
#include "preview/grid/EdgeScroller.h"
#include "preview/grid/GridAccessible.h"
#include "preview/grid/GridEmbroideryItem.h"
#include "preview/grid/GridNavigation.h"
#include "widgets/style/WidgetStyles.h"
#include <algorithm>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>

namespace {

// Around a card that is scrolled into view, in pixels.
constexpr int ScrollMargin = 10;
constexpr int WheelNotch = 120; // eighths of a degree

GridPreviewScene::Selecting selectingWith(Qt::KeyboardModifiers modifiers)
{
    const bool control = modifiers & Qt::ControlModifier;
    if (modifiers & Qt::ShiftModifier) {
        return control ? GridPreviewScene::AddRange : GridPreviewScene::SelectRange;
    }
    return control ? GridPreviewScene::SelectNothing : GridPreviewScene::SelectCard;
}

} // namespace

GridGraphicsView::GridGraphicsView(QWidget *parent)
    : EditorGraphicsView(parent), m_edgeScroller(new EdgeScroller(this))
{
    setFrameShape(QFrame::NoFrame);
    // The cards take nothing that is dropped; whoever stands around the view may.
    setAcceptDrops(false);
    // A few cards stand at the top, where the first of many would.
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    GridAccessible::install();
    setAccessibleName(tr("Designs"));
    setAccessibleDescription(tr("The arrow keys choose a design, Return opens it, Space enlarges "
                                "it, F marks it as a favorite."));
    connect(m_edgeScroller, &EdgeScroller::scrolled, this, &GridGraphicsView::continueRubberBand);
    connect(this, &QGraphicsView::rubberBandChanged, this, &GridGraphicsView::selectInBand);
    updateBackground();
}

void GridGraphicsView::updateBackground()
{
    setBackgroundBrush(WidgetStyles::GraphicsViewPalette().brush(QPalette::Base));
}

void GridGraphicsView::setScene(GridPreviewScene *scene)
{
    m_gridScene = scene;
    EditorGraphicsView::setScene(scene);
    connect(scene, &GridPreviewScene::currentChanged, this, &GridGraphicsView::announceFocus);
    connect(scene, &GridPreviewScene::filesSelected, this,
            [this] { announce(QAccessible::Selection); });
}

void GridGraphicsView::changeEvent(QEvent *event)
{
    EditorGraphicsView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        updateBackground();
    }
}

void GridGraphicsView::resizeEvent(QResizeEvent *event)
{
    EditorGraphicsView::resizeEvent(event);
    emit widthChanged(int(event->size().width() / currentZoomValue()));

    const QRect sheet = mapFromScene(sceneRect()).boundingRect();
    const int viewWidth = rect().right() - rect().left();
    const int sceneWidth = sheet.right() - sheet.left();
    const int margin = (viewWidth - sceneWidth) / 2;
    translate(sheet.left() - margin, 0);
}

void GridGraphicsView::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        zoomByWheel(event->angleDelta().y());
        event->accept();
        return;
    }
    // Otherwise the wheel only scrolls, also with Alt.
    QGraphicsView::wheelEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void GridGraphicsView::zoomByWheel(int angle)
{
    // Touch pads and fine wheels send a notch in many parts.
    const bool turnedBack = (m_wheelTurned < 0) != (angle < 0);
    m_wheelTurned = turnedBack ? angle : m_wheelTurned + angle;
    for (; m_wheelTurned >= WheelNotch; m_wheelTurned -= WheelNotch) {
        emit zoomInRequested();
    }
    for (; m_wheelTurned <= -WheelNotch; m_wheelTurned += WheelNotch) {
        emit zoomOutRequested();
    }
}

void GridGraphicsView::mouseDoubleClickEvent(QMouseEvent *event)
{
    EditorGraphicsView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && !isOnStar(event->pos())) {
        emit openSelection();
    }
}

bool GridGraphicsView::isOnStar(const QPoint &pos) const
{
    const QGraphicsItem *item = itemAt(pos);
    // A card has no other children.
    return item != nullptr && item->parentItem() != nullptr;
}

void GridGraphicsView::continueRubberBand()
{
    if (rubberBandRect().isNull()) {
        m_edgeScroller->stop();
        return;
    }
    QMouseEvent move(QEvent::MouseMove, m_pointer, viewport()->mapToGlobal(m_pointer), Qt::NoButton,
                     Qt::LeftButton, QGuiApplication::keyboardModifiers());
    EditorGraphicsView::mouseMoveEvent(&move);
}

void GridGraphicsView::selectInBand(const QRect &band)
{
    if (m_gridScene != nullptr && !band.isNull()) {
        m_gridScene->selectArea(mapToScene(band).boundingRect(), m_extending);
    }
}

void GridGraphicsView::keyPressEvent(QKeyEvent *event)
{
    const bool control = event->modifiers() == Qt::ControlModifier;
    const bool plain = event->modifiers() == Qt::NoModifier;
    if (control && event->key() == Qt::Key_A) {
        if (m_gridScene != nullptr) {
            m_gridScene->selectAll();
        }
    } else if ((control && event->key() == Qt::Key_D) ||
               (plain && event->key() == Qt::Key_Escape)) {
        if (m_gridScene != nullptr) {
            m_gridScene->selectNone();
        }
    } else if (event->key() == Qt::Key_Space) {
        emit openSelection();
    } else if (!handleCardKey(event)) {
        EditorGraphicsView::keyPressEvent(event);
    }
}

bool GridGraphicsView::handleCardKey(QKeyEvent *event)
{
    const int key = event->key();
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (m_gridScene == nullptr) {
        return false;
    }
    if (GridNavigation::isMovingKey(key) &&
        !(modifiers & ~(Qt::ControlModifier | Qt::ShiftModifier))) {
        moveByKey(key, selectingWith(modifiers));
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) &&
               modifiers == Qt::ControlModifier) {
        m_gridScene->toggleCurrent();
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && modifiers == Qt::NoModifier) {
        if (!event->isAutoRepeat()) {
            emit openDesign();
        }
    } else if (key == Qt::Key_F && modifiers == Qt::NoModifier) {
        if (!event->isAutoRepeat()) {
            emit toggleFavorites();
            announce(QAccessible::DescriptionChanged);
        }
    } else if (key == Qt::Key_F10 && modifiers == Qt::ShiftModifier) {
        openContextMenu();
    } else {
        return false;
    }
    return true;
}

void GridGraphicsView::moveByKey(int key, GridPreviewScene::Selecting selecting)
{
    const int current = m_gridScene->currentIndex();
    const GridNavigation navigation(m_gridScene->count(), m_gridScene->sheetLayout().columns(),
                                    rowsPerPage());
    const bool toAnEnd = key == Qt::Key_Home || key == Qt::Key_End;
    const int target =
        current >= 0 || toAnEnd ? navigation.target(key, current) : firstIndexInView();
    if (target >= 0) {
        m_usedByKeys = true;
        m_gridScene->setFocusShown(hasFocus());
        showCard(target);
        m_gridScene->moveTo(target, selecting);
    }
}

int GridGraphicsView::rowsPerPage() const
{
    const double rowHeight = m_gridScene->sheetLayout().rowHeight() * currentZoomValue();
    return rowHeight > 0.0 ? std::max(int(viewport()->height() / rowHeight), 1) : 1;
}

int GridGraphicsView::firstIndexInView() const
{
    const int index = m_gridScene->sheetLayout().firstIndexBelow(mapToScene(QPoint()).y());
    return std::min(index, m_gridScene->count() - 1);
}

void GridGraphicsView::showCard(int index)
{
    // What is done with the card may come ahead of its being painted.
    m_gridScene->cardAt(index);
    ensureVisible(m_gridScene->sheetLayout().rectOf(index), ScrollMargin, ScrollMargin);
}

void GridGraphicsView::goTo(int index)
{
    m_gridScene->beginAt(index);
    showCard(index);
}

QRect GridGraphicsView::screenRectOf(int index) const
{
    const QRectF card = m_gridScene->sheetLayout().rectOf(index);
    const QRect shown = mapFromScene(card).boundingRect();
    return QRect(viewport()->mapToGlobal(shown.topLeft()), shown.size());
}

void GridGraphicsView::announceFocus()
{
    if (hasFocus()) {
        announce(QAccessible::Focus);
    }
}

void GridGraphicsView::announce(QAccessible::Event type)
{
    // Qt makes the card's accessible side also where nobody listens.
    if (QAccessible::isActive() && m_gridScene->currentIndex() >= 0) {
        QAccessibleEvent event(this, type);
        event.setChild(m_gridScene->currentIndex());
        QAccessible::updateAccessibility(&event);
    }
}

void GridGraphicsView::focusInEvent(QFocusEvent *event)
{
    EditorGraphicsView::focusInEvent(event);
    if (m_gridScene == nullptr) {
        return;
    }
    const Qt::FocusReason reason = event->reason();
    const bool byKey = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                       reason == Qt::ShortcutFocusReason;
    if (byKey && m_gridScene->currentIndex() < 0 && m_gridScene->count() > 0) {
        m_gridScene->moveTo(firstIndexInView(), GridPreviewScene::SelectNothing);
    }
    m_usedByKeys = m_usedByKeys || byKey;
    m_gridScene->setFocusShown(m_usedByKeys);
    // Qt tells of the view as a whole after this; the card is what is to be read at last.
    QMetaObject::invokeMethod(this, &GridGraphicsView::announceFocus, Qt::QueuedConnection);
}

void GridGraphicsView::focusOutEvent(QFocusEvent *event)
{
    EditorGraphicsView::focusOutEvent(event);
    // A context menu keeps telling what it is about.
    if (m_gridScene != nullptr && event->reason() != Qt::PopupFocusReason) {
        m_gridScene->setFocusShown(false);
    }
}

void GridGraphicsView::mousePressEvent(QMouseEvent *event)
{
    if (m_gridScene == nullptr || event->button() == Qt::MiddleButton) {
        EditorGraphicsView::mousePressEvent(event);
        return;
    }
    if (event->button() != Qt::LeftButton) {
        // The base class would begin a rubber band, and the selection would be lost
        // to whoever only wants the context menu.
        return;
    }
    // The frame is for those who have no pointer on the card.
    m_usedByKeys = false;
    m_gridScene->setFocusShown(false);
    const int index = m_gridScene->sheetLayout().indexAt(mapToScene(event->pos()));
    const GridEmbroideryItem *card = index >= 0 ? m_gridScene->cardAt(index) : nullptr;
    const bool onCard = card != nullptr && itemAt(event->pos()) == card;
    m_extending = event->modifiers() & Qt::ControlModifier;
    m_drag.forget();
    if (onCard) {
        m_drag.begin(event->pos());
    }
    if (onCard && (event->modifiers() & Qt::ShiftModifier)) {
        // The scene knows no ranges.
        m_gridScene->moveTo(index, selectingWith(event->modifiers()));
        return;
    }
    if (index >= 0) {
        m_gridScene->beginAt(index);
    } else if (!m_extending) {
        m_gridScene->selectNone();
    }
    EditorGraphicsView::mousePressEvent(event);
}

void GridGraphicsView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_drag.isDue(event)) {
        m_drag.forget();
        dragDesigns();
        return;
    }
    EditorGraphicsView::mouseMoveEvent(event);
    m_pointer = event->pos();
    if (!rubberBandRect().isNull()) {
        m_edgeScroller->dragTo(m_pointer);
    }
}

void GridGraphicsView::mouseReleaseEvent(QMouseEvent *event)
{
    m_drag.forget();
    m_edgeScroller->stop();
    EditorGraphicsView::mouseReleaseEvent(event);
}

void GridGraphicsView::dragDesigns()
{
    const int index = m_gridScene->currentIndex();
    if (index < 0) {
        return;
    }
    // With Ctrl the press has left it as it was.
    m_gridScene->setSelected(index, true);
    const QList<QSharedPointer<IFile>> files = m_gridScene->selectedFiles();
    const QPixmap preview =
        PreviewCache::instance().previewImage(m_gridScene->fileAt(index), nullptr);
    DesignDrag::run(this, files,
                    DesignDrag::picture(preview, files.size(), viewport()->devicePixelRatioF()));
    // The release has gone to whoever the designs were dropped on.
    if (QGraphicsItem *grabber = m_gridScene->mouseGrabberItem()) {
        grabber->ungrabMouse();
    }
}

void GridGraphicsView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        openContextMenu();
    } else {
        EditorGraphicsView::contextMenuEvent(event);
    }
}

void GridGraphicsView::openContextMenu()
{
    if (m_gridScene == nullptr || m_gridScene->currentIndex() < 0) {
        return;
    }
    showCard(m_gridScene->currentIndex());
    const QPoint center = screenRectOf(m_gridScene->currentIndex()).center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, viewport()->mapFromGlobal(center), center);
    EditorGraphicsView::contextMenuEvent(&event);
}
