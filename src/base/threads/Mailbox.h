#pragma once

#include <functional>
#include <memory>

class QObject;

/**
 * Where threads that nobody waits for leave word for an object, as long as that object is
 * there: what comes later is dropped. A member of the object.
 */
class Mailbox
{
    struct Box;

public:
    /** What a thread keeps to write to; outlives the mailbox. Any thread. */
    class Address
    {
    public:
        /** Runs @p call on the thread of the mailbox's owner, unless that has gone. */
        void post(std::function<void()> call) const;

    private:
        friend class Mailbox;

        explicit Address(std::shared_ptr<Box> box);

        std::shared_ptr<Box> m_box;
    };

    explicit Mailbox(QObject *owner);
    ~Mailbox();

    Mailbox(const Mailbox &) = delete;
    Mailbox &operator=(const Mailbox &) = delete;

    Address address() const { return Address(m_box); }

private:
    std::shared_ptr<Box> m_box;
};
