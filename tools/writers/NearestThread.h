#pragma once

#include "embroidery/EmbThread.h"
#include <QList>
#include <QSharedPointer>
#include <QVector>

namespace DesignWriters {

/**
 * For each of the threads the index of the nearest colour in @p chart, looked for
 * from @p first to @p last (both included; a last of -1 is the chart's end).
 */
QVector<int> nearestIndices(const QList<QSharedPointer<Embroidery::EmbThread>> &threads,
                            const QList<QSharedPointer<Embroidery::EmbThread>> &chart,
                            int first = 0, int last = -1);

} // namespace DesignWriters
