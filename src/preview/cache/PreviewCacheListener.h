#pragma once

/** Mix-in of whatever waits for a preview of PreviewCache. GUI thread only. */
class PreviewCacheListener
{
public:
    PreviewCacheListener() = default;
    PreviewCacheListener(const PreviewCacheListener &) = delete;
    PreviewCacheListener &operator=(const PreviewCacheListener &) = delete;

    /** Withdraws all requests, so that a destroyed listener is never called back. */
    virtual ~PreviewCacheListener();

    /** A preview that this listener asked for has arrived; ask the cache again for it. */
    virtual void previewAvailable() = 0;
};
