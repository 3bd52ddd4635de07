#include "drives/TransferJob.h"

#include "base/threads/BackgroundThread.h"
#include "drives/DriveTransfer.h"

#include <atomic>
#include <cerrno>
#include <QFileInfo>
#include <QSet>

struct TransferJob::Shared
{
    const QStringList sources;
    const QString target;
    const quint64 device;
    std::atomic<int> begun{0};
    std::atomic<qint64> bytes{0};
    std::atomic<qint64> totalBytes{0};
    std::atomic<bool> abandoned{false};

    Shared(const QStringList &paths, const QString &root, quint64 number)
        : sources(paths), target(root), device(number)
    {
    }

    TransferResult run();
    /** For what has nothing to do with any of the files. */
    TransferResult failure(const QString &text) const;
    void countBytes();
    void copyFiles(DriveTransfer &transfer, TransferResult &result);
};

TransferJob::TransferJob(const QStringList &sources, const QString &target, quint64 device,
                         QObject *parent)
    : QObject(parent), m_shared(std::make_shared<Shared>(sources, target, device))
{
    m_result.total = sources.size();
}

TransferJob::~TransferJob()
{
    m_shared->abandoned = true;
}

void TransferJob::start()
{
    const Mailbox::Address address = m_mailbox.address();
    const auto end = [this, address](const TransferResult &result) {
        address.post([this, result] { finish(result); });
    };
    const bool started = BackgroundThread::tryStart([shared = m_shared, end] {
        try {
            end(shared->run());
        } catch (const std::exception &error) {
            end(shared->failure(QString::fromLocal8Bit(error.what())));
        }
    });
    if (!started)
        end(m_shared->failure(qt_error_string(EAGAIN)));
}

TransferJob::Progress TransferJob::progress() const
{
    return {m_shared->begun, m_shared->bytes, m_shared->totalBytes};
}

void TransferJob::finish(const TransferResult &result)
{
    m_result = result;
    emit finished();
}

TransferResult TransferJob::Shared::run()
{
    TransferResult result;
    result.total = sources.size();
    if (sources.isEmpty())
        return result;
    countBytes();
    // The drive may let us wait from the first question on.
    begun = 1;
    DriveTransfer transfer(target, device);
    copyFiles(transfer, result);
    // What was copied is to be on the drive when it is told of, also after a failure.
    const TransferResult::Reason flushed = transfer.flush();
    if (!result.hasFailed() && flushed != TransferResult::None) {
        result.reason = flushed;
        result.failedName = QFileInfo(sources.last()).fileName();
        result.systemText = transfer.systemText();
    }
    return result;
}

TransferResult TransferJob::Shared::failure(const QString &text) const
{
    TransferResult result;
    result.total = sources.size();
    result.reason = TransferResult::Other;
    result.failedName = QFileInfo(sources.value(0)).fileName();
    result.systemText = text;
    return result;
}

void TransferJob::Shared::countBytes()
{
    qint64 total = 0;
    for (const QString &source : sources)
        total += QFileInfo(source).size();
    totalBytes = total;
}

void TransferJob::Shared::copyFiles(DriveTransfer &transfer, TransferResult &result)
{
    QSet<QString> names;
    const auto told = [this](qint64 copied) {
        bytes += copied;
        return !abandoned;
    };
    for (const QString &source : sources) {
        begun = result.copied + 1;
        const QString name = QFileInfo(source).fileName();
        result.reason = transfer.copy(source, told);
        if (result.hasFailed()) {
            result.failedName = name;
            result.systemText = transfer.systemText();
            return;
        }
        ++result.copied;
        // The drive does not tell capitals from small letters.
        const QString key = name.toCaseFolded();
        result.replacedByLater += names.contains(key) ? 1 : 0;
        names.insert(key);
    }
}
