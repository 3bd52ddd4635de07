#include "preview/cache/PreviewCacheListener.h"

#include "preview/cache/PreviewCache.h"

PreviewCacheListener::~PreviewCacheListener()
{
    PreviewCache::instance().dropRequestsOfListener(this);
}
