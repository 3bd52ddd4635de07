#include "base/threads/Mailbox.h"

#include <mutex>
#include <QObject>

struct Mailbox::Box
{
    std::mutex mutex;
    QObject *owner = nullptr;
};

Mailbox::Address::Address(std::shared_ptr<Box> box) : m_box(std::move(box)) {}

void Mailbox::Address::post(std::function<void()> call) const
{
    const std::lock_guard<std::mutex> lock(m_box->mutex);
    if (m_box->owner)
        QMetaObject::invokeMethod(m_box->owner, std::move(call), Qt::QueuedConnection);
}

Mailbox::Mailbox(QObject *owner) : m_box(std::make_shared<Box>())
{
    m_box->owner = owner;
}

Mailbox::~Mailbox()
{
    const std::lock_guard<std::mutex> lock(m_box->mutex);
    m_box->owner = nullptr;
}
