#pragma once

#include <QCache>
#include <QPair>
#include <QPixmap>
#include <QSize>

/**
 * Previews brought down to the size at which the cards show them. Averaging all
 * pixels keeps fine stitches whole, where drawing scaled would skip some, and
 * what is painted again while the sheet scrolls need not be scaled again.
 */
class ThumbnailCache
{
public:
    ThumbnailCache();

    /** @p image as @p size device pixels of a screen with @p ratio of them per pixel. */
    QPixmap thumbnail(const QPixmap &image, const QSize &size, qreal ratio);

private:
    // The image's key and the width.
    QCache<QPair<qint64, int>, QPixmap> m_thumbnails;
};
