#pragma once

#include "embroidery/EmbPattern.h"
#include <QByteArray>

namespace DesignWriters {

/** The PEC block of a design: label, colours, stitches and thumbnails. It is
    the body of a PEC file and the tail of a PES file. */
QByteArray pecBlock(const Embroidery::EmbPattern &pattern);

} // namespace DesignWriters
