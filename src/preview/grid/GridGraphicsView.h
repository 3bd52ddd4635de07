#pragma once

#include "preview/grid/EditorGraphicsView.h"

/** The view of the grid: tells its width in scene units and handles the grid's keys. */
class GridGraphicsView : public EditorGraphicsView
{
    Q_OBJECT

public:
    explicit GridGraphicsView(QWidget *parent = nullptr);

signals:
    /** The view shows `width` scene units from left to right. */
    void widthChanged(int width);
    /** The user wants to see the selection enlarged. */
    void openSelection();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void selectAll();
    void clearSelection();
    void updateBackground();
};
