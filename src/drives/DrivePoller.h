#pragma once

#include <functional>
#include <memory>
#include <QList>
#include <QObject>
#include <QStorageInfo>

/** Lists the mounted volumes; called on a thread of its own, and allowed to take its time. */
using VolumeSource = std::function<QList<QStorageInfo>()>;

/**
 * Lists the mounted volumes on a thread of its own, since a dead network mount
 * or a sleeping disk may hold up the one who asks for as long as it likes. At
 * most one question is under way; one that never gets its answer is left behind
 * when the poller goes.
 */
class DrivePoller : public QObject
{
    Q_OBJECT

public:
    explicit DrivePoller(VolumeSource source, QObject *parent = nullptr);
    ~DrivePoller() override;

    /** Asks, unless an answer is still awaited. */
    void poll();

signals:
    /** The answer, in the order of the system; sent on the poller's own thread. */
    void volumesListed(const QList<QStorageInfo> &volumes);

private:
    struct Mailbox;

    void takeAnswer(const QList<QStorageInfo> &volumes);

    const VolumeSource m_source;
    std::shared_ptr<Mailbox> m_mailbox;
    bool m_polling = false;
};
