#include "preview/grid/ThumbnailCache.h"

namespace {

// In pixels: 64 MB, some screens full of cards.
constexpr int MaxCost = 16 * 1024 * 1024;

} // namespace

ThumbnailCache::ThumbnailCache() : m_thumbnails(MaxCost) {}

QPixmap ThumbnailCache::thumbnail(const QPixmap &image, const QSize &size, qreal ratio)
{
    const QPair<qint64, int> key(image.cacheKey(), size.width());
    const QPixmap *known = m_thumbnails.object(key);
    if (known != nullptr && known->size() == size && known->devicePixelRatio() == ratio) {
        return *known;
    }
    QPixmap scaled = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    m_thumbnails.insert(key, new QPixmap(scaled), size.width() * size.height());
    return scaled;
}
