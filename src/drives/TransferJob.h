#pragma once

#include "base/threads/Mailbox.h"
#include "drives/TransferResult.h"

#include <memory>
#include <QObject>
#include <QStringList>

/**
 * A transfer under way on a thread of its own, so that a slow drive holds up nobody else. It
 * ends at the first file that cannot be copied. When the job goes before its end, the thread
 * stops by itself as soon as the drive lets it.
 */
class TransferJob : public QObject
{
    Q_OBJECT

public:
    struct Progress
    {
        int begun = 0; ///< files
        qint64 bytes = 0;
        qint64 totalBytes = 0; ///< 0 until they are counted
    };

    /**
     * @param sources absolute paths
     * @param target root path of the mounted drive
     * @param device what the drive is known by, see DriveTransfer
     */
    TransferJob(const QStringList &sources, const QString &target, quint64 device,
                QObject *parent = nullptr);
    ~TransferJob() override;

    void start();

    Progress progress() const;

    /** As of the end; before it nothing is copied and nothing has failed. */
    TransferResult result() const { return m_result; }

signals:
    void finished();

private:
    struct Shared;

    void finish(const TransferResult &result);

    std::shared_ptr<Shared> m_shared;
    TransferResult m_result;
    Mailbox m_mailbox{this};
};
