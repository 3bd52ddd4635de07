#pragma once

#include "base/threads/Mailbox.h"

#include <functional>
#include <QObject>
#include <QString>

/** Runs slow work, one piece at a time, on a thread that nobody waits for. */
class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    explicit BackgroundWork(QObject *parent = nullptr);

    /**
     * @param work runs on the other thread and may outlive this object, so it must own all
     *        that it needs
     * @param done runs on this one, with a text for the user when @p work threw or there was
     *        no thread for it; not at all when this object has gone by then
     */
    void run(std::function<void()> work, const std::function<void(const QString &error)> &done);

    bool isRunning() const { return m_running; }

private:
    void finish(const std::function<void(const QString &)> &done, const QString &error);

    bool m_running = false;
    Mailbox m_mailbox{this};
};
