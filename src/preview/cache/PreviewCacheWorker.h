#pragma once

#include "preview/cache/PreviewRepairer.h"

#include <QByteArray>
#include <QImage>
#include <QObject>
#include <QString>
#include <QThread>

/**
 * Decodes preview files in a thread of its own, one at a time in the order of
 * arrival. The thread starts with the worker and ends with it.
 *
 * What crosses the thread border is an image rather than a pixmap, since
 * pixmaps belong to the GUI thread on some platforms.
 */
class PreviewCacheWorker : public QObject
{
    Q_OBJECT

public:
    PreviewCacheWorker();
    ~PreviewCacheWorker() override;

    /** Ends the thread for good once the load under way is done; those still queued are dropped. */
    void stop();

    /** In the worker's thread only. */
    void setRepairer(const PreviewRepairer &repairer) { m_repairer = repairer; }

public slots:
    /**
     * Runs in the worker's thread; always answers with previewLoaded(). A file that is
     * there but damaged is made anew from the design.
     */
    void loadPreview(const QByteArray &key, const QString &path, const QString &designPath);

signals:
    /** The image of @p key, or the error picture where the file has none. */
    void previewLoaded(const QByteArray &key, QImage image);

private:
    QImage repair(const QByteArray &key, const QString &path, const QString &designPath) const;

    QThread m_thread;
    PreviewRepairer m_repairer;
};
