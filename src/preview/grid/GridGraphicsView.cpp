#include "preview/grid/GridGraphicsView.h"

#include "widgets/style/WidgetStyles.h"
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QPainterPath>

GridGraphicsView::GridGraphicsView(QWidget *parent) : EditorGraphicsView(parent)
{
    setFrameShape(QFrame::NoFrame);
    // A few cards stand at the top, where the first of many would.
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setAccessibleName(tr("Designs"));
    updateBackground();
}

void GridGraphicsView::updateBackground()
{
    setBackgroundBrush(WidgetStyles::GraphicsViewPalette().brush(QPalette::Base));
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
    translate(sheet.left() - (viewWidth - sceneWidth) / 2, 0);
}

void GridGraphicsView::wheelEvent(QWheelEvent *event)
{
    // The wheel only scrolls, also with Alt.
    QGraphicsView::wheelEvent(event);
}

void GridGraphicsView::mouseDoubleClickEvent(QMouseEvent *event)
{
    EditorGraphicsView::mouseDoubleClickEvent(event);
    emit openSelection();
}

void GridGraphicsView::keyPressEvent(QKeyEvent *event)
{
    const bool control = event->modifiers() == Qt::ControlModifier;
    const bool plain = event->modifiers() == Qt::NoModifier;
    if (control && event->key() == Qt::Key_A) {
        selectAll();
    } else if ((control && event->key() == Qt::Key_D) ||
               (plain && event->key() == Qt::Key_Escape)) {
        clearSelection();
    } else if (event->key() == Qt::Key_Space) {
        emit openSelection();
    } else {
        EditorGraphicsView::keyPressEvent(event);
    }
}

void GridGraphicsView::selectAll()
{
    if (scene() != nullptr) {
        QPainterPath everything;
        everything.addRect(sceneRect());
        scene()->setSelectionArea(everything, viewportTransform());
    }
}

void GridGraphicsView::clearSelection()
{
    if (scene() != nullptr) {
        scene()->clearSelection();
    }
}
