#pragma once

#include "ui/design/DesignPicture.h"
#include "ui/design/DesignViewport.h"

#include <optional>
#include <QSizeF>
#include <QWidget>

class DesignRenderer;
class QLabel;
class QPinchGesture;

/**
 * A design on its fabric, in any size. What it shows is drawn by a DesignRenderer;
 * until the sharp picture is there, the one before is moved and enlarged, so that it
 * follows the hand at once.
 *
 * A zoom of 1 is the true size.
 */
class DesignView : public QWidget
{
    Q_OBJECT

public:
    explicit DesignView(QWidget *parent = nullptr);

    /** Shows another design, all of it sewn, in a hoop of so many millimetres if there is one. */
    void setDesign(const QSharedPointer<const SewingOrder> &order,
                   const std::optional<QSizeF> &hoop);
    /** Says @p text in the place of a design; empty to show the design again. */
    void setMessage(const QString &text);

    const DrawingStyle &drawingStyle() const { return m_style; }
    void setDrawingStyle(const DrawingStyle &style);
    void setHoop(const std::optional<QSizeF> &hoop);
    /** What is sewn before this point shows, and the needle until the design is complete. */
    void setEndPoint(int point);
    /** Moves the design so that the needle is in view. */
    void showNeedle();

    /** How many times as large as in reality the design is shown. */
    double zoom() const { return m_viewport.zoom(); }
    bool isFitting() const { return m_viewport.isFitting(); }
    /** Whether the screen tells its size; otherwise the true size is a guess. */
    bool isTrueSizeKnown() const;

public slots:
    /** Around the middle of the view. */
    void setZoom(double zoom);
    void zoomIn();
    void zoomOut();
    /** Shows the whole design, or its hoop, and goes on to do so when the view changes its size. */
    void fit();
    /** Moves what is seen by so many pixels. */
    void pan(const QPointF &pixels);

signals:
    void zoomChanged(double zoom);

protected:
    bool event(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void pinch(const QPinchGesture *gesture);
    void screenChanged();
    void viewChanged();
    void updateView();
    DesignScene wantedScene() const;
    bool shows(const DesignScene &scene) const;
    void takePicture(const DesignPicture &picture);
    void paintPicture(QPainter &painter) const;
    void paintNeedle(QPainter &painter) const;
    QColor ink() const;

    DesignRenderer *m_renderer;
    QLabel *m_message;
    DesignViewport m_viewport;
    QSharedPointer<const SewingOrder> m_order;
    DrawingStyle m_style;
    // In tenths of a millimetre.
    std::optional<QRectF> m_hoop;
    int m_endPoint = 0;
    DesignPicture m_picture;
    DesignScene m_requested;
    std::optional<QPointF> m_draggedFrom;
};
