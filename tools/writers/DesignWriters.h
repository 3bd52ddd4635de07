#pragma once

#include "embroidery/EmbPattern.h"
#include <QByteArray>
#include <QString>
#include <QStringList>

/**
 * Writes designs in the eight formats, for the samples and for tests. The
 * product reads these formats and never writes them.
 *
 * Coordinates are rounded to whole tenths of a millimetre. Formats that store
 * chart numbers get the nearest colour of their chart, the others the colour
 * itself; EXP holds none. What a format has no code for (a trim in DST, SEW and
 * HUS) is left out.
 */
namespace DesignWriters {

/** The file extensions, in lower case, that write() knows. */
QStringList formats();

/**
 * The bytes of a file in @p format. Throws std::invalid_argument for an unknown
 * format and std::length_error for a design that the format can't hold.
 */
QByteArray write(const QString &format, const Embroidery::EmbPattern &pattern);

} // namespace DesignWriters
