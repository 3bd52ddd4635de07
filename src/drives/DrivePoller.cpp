#include "ui/DrivePoller.h"

#include <mutex>
#include <thread>
#include <utility>

/** Where the thread finds the poller, as long as there is one. */
struct DrivePoller::Mailbox
{
    std::mutex mutex;
    DrivePoller *poller = nullptr;
};

DrivePoller::DrivePoller(VolumeSource source, QObject *parent)
    : QObject(parent), m_source(std::move(source)), m_mailbox(std::make_shared<Mailbox>())
{
    m_mailbox->poller = this;
}

DrivePoller::~DrivePoller()
{
    const std::lock_guard<std::mutex> lock(m_mailbox->mutex);
    m_mailbox->poller = nullptr;
}

void DrivePoller::poll()
{
    if (m_polling)
        return;
    m_polling = true;
    std::thread([mailbox = m_mailbox, source = m_source] {
        const QList<QStorageInfo> volumes = source();
        const std::lock_guard<std::mutex> lock(mailbox->mutex);
        if (DrivePoller *poller = mailbox->poller)
            QMetaObject::invokeMethod(
                poller, [poller, volumes] { poller->takeAnswer(volumes); }, Qt::QueuedConnection);
    }).detach();
}

void DrivePoller::takeAnswer(const QList<QStorageInfo> &volumes)
{
    m_polling = false;
    emit volumesListed(volumes);
}
