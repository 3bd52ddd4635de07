#pragma once

#include "preview/grid/DesignDrag.h"
#include "preview/grid/EditorGraphicsView.h"
#include "preview/grid/GridPreviewScene.h"
#include <QAccessible>

class EdgeScroller;

/** The view of the grid: tells its width in scene units and handles the grid's keys. */
class GridGraphicsView : public EditorGraphicsView
{
    Q_OBJECT

public:
    explicit GridGraphicsView(QWidget *parent = nullptr);

    void setScene(GridPreviewScene *scene);
    GridPreviewScene *gridScene() const { return m_gridScene; }

    /** Scrolls as far as it takes for the card to be seen. */
    void showCard(int index);

    /** Where a card is on the screen, in pixels, though it may be scrolled out of the view. */
    QRect screenRectOf(int index) const;

    /** Makes the card the current one and scrolls to it; the selection stays. */
    void goTo(int index);

public slots:
    /** That of the current card, if any. */
    void openContextMenu();

signals:
    /** The view shows @p width scene units from left to right. */
    void widthChanged(int width);
    /** The wheel was turned with Ctrl, by a whole notch. */
    void zoomInRequested();
    void zoomOutRequested();
    /** The user wants to see the selection enlarged. */
    void openSelection();
    /** The user wants a closer look at the design of the current card. */
    void openDesign();
    /** The user wants the favourite flag of the selection turned over. */
    void toggleFavorites();

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void selectInBand(const QRect &band);
    void updateBackground();
    void zoomByWheel(int angle);
    bool handleCardKey(QKeyEvent *event);
    void moveByKey(int key, GridPreviewScene::Selecting selecting);
    int rowsPerPage() const;
    int firstIndexInView() const;
    void dragDesigns();
    bool isOnStar(const QPoint &pos) const;
    void continueRubberBand();
    void announceFocus();
    void announce(QAccessible::Event type);

    GridPreviewScene *m_gridScene = nullptr;
    EdgeScroller *m_edgeScroller;
    QPoint m_pointer; ///< in pixels of the viewport, as of the last move
    // Rather than by the mouse, as of the last press.
    bool m_usedByKeys = false;
    int m_wheelTurned = 0;    ///< since the last notch, in eighths of a degree
    bool m_extending = false; ///< a rubber band that adds to the selection
    DesignDrag m_drag;
};
