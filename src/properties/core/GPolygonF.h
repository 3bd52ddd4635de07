#pragma once

#include <QPointF>
#include <QVector>

/** The vertices of a polygon, in order. */
using GPolygonF = QVector<QPointF>;
