#pragma once

#include "embroidery/EmbPattern.h"
#include <QVector>

namespace DesignWriters {

/** A command and the way to it from the step before, in tenths of a millimetre. */
struct Step
{
    int command;
    int dx;
    int dy;
};

/**
 * The pattern as relative steps of at most @p limit along each axis; longer ones
 * are cut into equal parts. Ends at the first `end` command, which is left out.
 */
QVector<Step> relativeSteps(const Embroidery::EmbPattern &pattern, int limit);

/** The number of colour changes among the steps. */
int colorChanges(const QVector<Step> &steps);

} // namespace DesignWriters
