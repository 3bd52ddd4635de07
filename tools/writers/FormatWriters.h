#pragma once

#include "embroidery/EmbPattern.h"
#include <QByteArray>

/** One function for each format; see DesignWriters::write(). */
namespace DesignWriters {

QByteArray writeDst(const Embroidery::EmbPattern &pattern);
QByteArray writeExp(const Embroidery::EmbPattern &pattern);
QByteArray writeHus(const Embroidery::EmbPattern &pattern);
QByteArray writeJef(const Embroidery::EmbPattern &pattern);
QByteArray writePec(const Embroidery::EmbPattern &pattern);
QByteArray writePes(const Embroidery::EmbPattern &pattern);
QByteArray writeSew(const Embroidery::EmbPattern &pattern);
QByteArray writeXxx(const Embroidery::EmbPattern &pattern);

} // namespace DesignWriters
