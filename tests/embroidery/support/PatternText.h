#pragma once

#include "embroidery/EmbPattern.h"

#include <QByteArray>
#include <QSharedPointer>
#include <QString>

namespace TestSupport {

/**
 * The points of a design as one word each: the letter of the command (S stitch,
 * M move, T trim, H stop, E end, C colour change, Q sequin mode, q sequin eject)
 * and the coordinates, "S1,0 E1,0" for instance.
 */
QString pointsText(const Embroidery::EmbPattern &pattern);

/** The threads as "#rrggbb description/catalogue number/brand/chart", separated by "; ". */
QString threadsText(const Embroidery::EmbPattern &pattern);

/** The metadata as "key=value", separated by "; ". */
QString metadataText(const Embroidery::EmbPattern &pattern);

/** The points that the bytes give as a file of that extension, or "! " and the error. */
QString read(const QString &extension, const QByteArray &bytes);

/** The design that the bytes give; throws IOException. */
QSharedPointer<Embroidery::EmbPattern> design(const QString &extension, const QByteArray &bytes);

/** Bytes from hexadecimal digits; blanks are ignored. */
QByteArray hex(const char *digits);

} // namespace TestSupport
