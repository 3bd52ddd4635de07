#pragma once

#include "base/GlobalSettings.h"
#include "catalogue/records/IFile.h"
#include "preview/cache/PreviewCacheWorker.h"
#include "preview/cache/PreviewRepairer.h"
#include <QByteArray>
#include <QCache>
#include <QMultiHash>
#include <QObject>
#include <QPixmap>
#include <QSharedPointer>

class PreviewCacheListener;

/**
 * The previews in memory. Answers at once, with a placeholder where the preview
 * has to be loaded first; a worker thread does the loading. GUI thread only.
 */
class PreviewCache : public QObject
{
    Q_OBJECT

public:
    /** Made at first use, which needs the application object; destroyed at exit. */
    static PreviewCache &instance();

    /**
     * The preview of @p file, or the placeholder while it is loaded. @p listener,
     * which may be null, is told once when it has arrived.
     */
    QPixmap previewImage(const QSharedPointer<IFile> &file, PreviewCacheListener *listener);

    /** Forgets what @p listener waits for; loads under way still fill the cache. */
    void dropRequestsOfListener(PreviewCacheListener *listener);

    /** Who mends damaged previews; without one they show the error picture. */
    void setRepairer(const PreviewRepairer &repairer);

    /** Empties the memory. Open requests stay and are answered as usual. */
    void clear();

public slots:
    /** Keeps @p image for @p key and tells whoever waits for it. */
    void previewLoaded(const QByteArray &key, QImage image);

signals:
    /** Asks the worker for the file at @p path, the preview of the design at @p designPath. */
    void loadPreview(const QByteArray &key, const QString &path, const QString &designPath);

private:
    PreviewCache();

    QPixmap m_loadingImage;
    PreviewCacheWorker m_worker;
    QCache<QByteArray, QPixmap> m_cache;
    GlobalSettings m_settings;
    QMultiHash<PreviewCacheListener *, QByteArray> m_listenerRequests;
    QMultiHash<QByteArray, PreviewCacheListener *> m_keyRequests;
};
