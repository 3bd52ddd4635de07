#pragma once

#include <QPointF>
#include <QSharedPointer>
#include <QVector>

namespace Embroidery {

class EmbThread;

/** One polyline of one colour; points in tenths of a millimetre. */
struct StitchBlock
{
    QVector<QPointF> points;
    QSharedPointer<EmbThread> thread;
};

} // namespace Embroidery
