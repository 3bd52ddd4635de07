#pragma once

#include "preview/drawing/SewingOrder.h"

#include <QSharedPointer>
#include <QSlider>

/**
 * Where in the sewing one is. Below its groove runs a band in the colours of the
 * threads, so that each change of colour is seen; a press anywhere goes there.
 */
class SewingSlider : public QSlider
{
    Q_OBJECT

public:
    explicit SewingSlider(QWidget *parent = nullptr);

    void setDesign(const QSharedPointer<const SewingOrder> &order);
    /** The use whose part of the band is marked, -1 for none. */
    void setMarkedUse(int use);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QStyleOptionSlider option() const;
    /** What the middle of the handle covers on its way, in pixels. */
    QRect way() const;
    int pointAt(int x) const;

    QSharedPointer<const SewingOrder> m_order;
    int m_marked = -1;
};
