#pragma once

#include "Curve.h"
#include <QVector>

/** Rows of fill stitches. */
namespace FillRows {

/**
 * The needle points that fill what lies inside an odd number of the outlines, in
 * sections that can each be sewn without lifting the needle. Rows run at
 * @p degrees; units are tenths of a millimetre.
 */
QVector<Curve> sections(const QVector<Curve> &outlines, double degrees);

} // namespace FillRows
