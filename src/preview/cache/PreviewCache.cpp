#include "preview/cache/PreviewCache.h"

#include "preview/cache/PreviewCacheListener.h"
#include <QCoreApplication>
#include <utility>

namespace {

// In pixels: about 819 previews of 400 by 400.
constexpr int MaxCost = 131072000;

} // namespace

PreviewCache::PreviewCache() : m_loadingImage(QStringLiteral(":/loading.png")), m_cache(MaxCost)
{
    connect(this, &PreviewCache::loadPreview, &m_worker, &PreviewCacheWorker::loadPreview);
    connect(&m_worker, &PreviewCacheWorker::previewLoaded, this, &PreviewCache::previewLoaded);
    // Decoding uses globals of Qt that may be gone before this object is.
    qAddPostRoutine([]() { instance().m_worker.stop(); });
}

PreviewCache &PreviewCache::instance()
{
    static PreviewCache cache;
    return cache;
}

QPixmap PreviewCache::previewImage(const QSharedPointer<IFile> &file,
                                   PreviewCacheListener *listener)
{
    const QByteArray key = file->contentHash();
    if (const QPixmap *pixmap = m_cache.object(key)) {
        return *pixmap;
    }
    if (!m_keyRequests.contains(key)) {
        emit loadPreview(key, m_settings.previewImagePath(key), file->absoluteFilePath());
    }
    // A card that is painted again while it waits has asked already.
    if (listener != nullptr && !m_keyRequests.contains(key, listener)) {
        m_listenerRequests.insert(listener, key);
        m_keyRequests.insert(key, listener);
    }
    return m_loadingImage;
}

void PreviewCache::previewLoaded(const QByteArray &key, QImage image)
{
    const int cost = image.width() * image.height();
    m_cache.insert(key, new QPixmap(QPixmap::fromImage(std::move(image))), cost);

    const QList<PreviewCacheListener *> listeners = m_keyRequests.values(key);
    for (PreviewCacheListener *listener : listeners) {
        // A callback may have destroyed another of the listeners.
        if (m_keyRequests.contains(key, listener)) {
            listener->previewAvailable();
            m_listenerRequests.remove(listener, key);
        }
    }
    m_keyRequests.remove(key);
}

void PreviewCache::dropRequestsOfListener(PreviewCacheListener *listener)
{
    const QList<QByteArray> keys = m_listenerRequests.values(listener);
    for (const QByteArray &key : keys) {
        m_keyRequests.remove(key, listener);
    }
    m_listenerRequests.remove(listener);
}

void PreviewCache::setRepairer(const PreviewRepairer &repairer)
{
    QMetaObject::invokeMethod(&m_worker, [this, repairer] { m_worker.setRepairer(repairer); });
}

void PreviewCache::clear()
{
    m_cache.clear();
}
