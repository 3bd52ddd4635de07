#pragma once

#include "base/InstanceBlock.h"
#include <QCoreApplication>
#include <QSharedMemory>
#include <QString>

/**
 * While it lives, no organiser of this user gets past the guard at its start: it
 * holds the lock on the block in which the running instance is recorded. To be
 * held only as long as a look or a save takes.
 */
class OrganiserGuard
{
    Q_DECLARE_TR_FUNCTIONS(OrganiserGuard)

public:
    OrganiserGuard();
    ~OrganiserGuard();

    OrganiserGuard(const OrganiserGuard &) = delete;
    OrganiserGuard &operator=(const OrganiserGuard &) = delete;

    /**
     * Whether an organiser is recorded and answers. One that was killed stays
     * recorded while other processes hold the block, but does not answer.
     */
    bool isOrganiserRunning() const;

    /** What to tell people whose command has to wait until none runs. */
    static QString runningText();

private:
    bool knowsThatNoneRuns() const;
    bool organiserAnswers() const;

    QString m_name;
    QSharedMemory m_block;
    bool m_locked = false;
};
