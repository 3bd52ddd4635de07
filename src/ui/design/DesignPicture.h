#pragma once

#include "preview/drawing/DesignDrawing.h"

#include <QImage>
#include <QMetaType>
#include <QPointF>
#include <QSharedPointer>
#include <QSize>

/** A part of a design as it is to be drawn. */
struct DesignScene
{
    QSharedPointer<const SewingOrder> order;
    DrawingStyle style;
    /** What is sewn before this point is drawn. */
    int endPoint = 0;
    /** The point of the design in the upper left corner, in tenths of a millimetre. */
    QPointF origin;
    /** Pixels of the screen in a tenth of a millimetre. */
    double scale = 1.0;
    /** In pixels of the screen. */
    QSize size;
    /** How many of them make a pixel of a widget, along one side. */
    double ratio = 1.0;

    /** Where the picture lies, in tenths of a millimetre. */
    QRectF area() const { return QRectF(origin, QSizeF(size) / scale); }

    /** Whether both show the same but for how far it is sewn. */
    bool hasSameView(const DesignScene &other) const
    {
        return order == other.order && style == other.style && origin == other.origin &&
               scale == other.scale && size == other.size && ratio == other.ratio;
    }
};

/** A scene that has been drawn. */
struct DesignPicture
{
    DesignScene scene;
    QImage image;
};

Q_DECLARE_METATYPE(DesignScene)
Q_DECLARE_METATYPE(DesignPicture)
