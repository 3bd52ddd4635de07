#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

class IAbortCheck;

/** Mends single previews beside the scans. */
namespace PreviewRepair {

/**
 * Paints the design at @p designPath again and puts the picture in the place of the one
 * at @p previewPath. Any thread.
 * @return the picture; null when the file is not the one that @p hash belongs to, can't be
 *         read or has nothing to show, or when @p abort said stop
 */
QImage repaint(const QByteArray &hash, const QString &previewPath, const QString &designPath,
               const IAbortCheck &abort);

} // namespace PreviewRepair
