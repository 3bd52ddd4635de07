#include "preview/cache/PreviewCacheWorker.h"

#include "base/IAbortCheck.h"

#include <QFileInfo>
#include <QImageReader>

namespace {

// Previews are 400 pixels wide. A file far beyond that is none of ours, and
// decoding it could take all memory.
constexpr int LargestSide = 4096;

QImage readImage(const QString &path)
{
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.width() > LargestSide || size.height() > LargestSide) {
        return QImage();
    }
    return reader.read();
}

/** The end of the program doesn't wait for a picture. */
class EndOfThread : public IAbortCheck
{
public:
    int abortState() const override
    {
        return QThread::currentThread()->isInterruptionRequested() ? 1 : 0;
    }
};

} // namespace

PreviewCacheWorker::PreviewCacheWorker()
{
    moveToThread(&m_thread);
    m_thread.start(QThread::InheritPriority);
}

PreviewCacheWorker::~PreviewCacheWorker()
{
    stop();
}

void PreviewCacheWorker::stop()
{
    m_thread.requestInterruption();
    m_thread.quit();
    m_thread.wait();
}

void PreviewCacheWorker::loadPreview(const QByteArray &key, const QString &path,
                                     const QString &designPath)
{
    // The loads still queued at the end of the program have nobody to wait for them.
    if (m_thread.isInterruptionRequested()) {
        return;
    }
    QImage image = readImage(path);
    if (image.isNull()) {
        image = repair(key, path, designPath);
    }
    if (image.isNull()) {
        image = readImage(QStringLiteral(":/render-error.png"));
    }
    // The format that pixmaps have, so that the GUI thread needs no conversion.
    emit previewLoaded(key, image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

QImage PreviewCacheWorker::repair(const QByteArray &key, const QString &path,
                                  const QString &designPath) const
{
    // Where there is no file, there was nothing to show, or the next scan makes it.
    if (!m_repairer || !QFileInfo(path).isFile()) {
        return QImage();
    }
    return m_repairer(key, path, designPath, EndOfThread());
}
