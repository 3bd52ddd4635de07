#pragma once

#include "base/qt/Events.h"

#include <QGraphicsView>

class EditorScene;
class QGestureEvent;
class QPinchGesture;

/** A view that can be zoomed, by call or by pinching, and panned with the middle button. */
class EditorGraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    /** What dragging with the left button does. */
    enum InteractionMode { Pan = 0, RubberBand = 1, NoDragging = 2 };

    explicit EditorGraphicsView(QWidget *parent = nullptr);

    void setScene(EditorScene *scene);

    /** Shows the scene with @p z pixels per scene unit around the same centre. */
    void zoomTo(double z);
    /** Pixels per scene unit. */
    double currentZoomValue() const { return m_zoom; }

    void setInteractionMode(InteractionMode mode);

    /** Lets the vertical axis of the scene point upwards from the next zoom on. */
    void setFlipped(bool flipped) { m_flipped = flipped; }

signals:
    void zoomChanged(double zoom);
    /** The wheel was turned by @p delta with Alt held down. */
    void mouseZoom(int delta);

protected:
    bool event(QEvent *event) override;
    void enterEvent(QtEvents::Enter *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void applyInteractionMode(InteractionMode mode);
    void applyZoom(double z);
    void pinch(const QPinchGesture *gesture);

    EditorScene *m_scene = nullptr;
    InteractionMode m_mode = RubberBand;
    double m_zoom = 1.0;
    double m_lastPinchFactor = 1.0;
    bool m_flipped = false;
};
