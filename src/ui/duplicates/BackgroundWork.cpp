#include "ui/duplicates/BackgroundWork.h"

#include "base/Error.h"
#include "base/threads/BackgroundThread.h"

#include <new>

namespace {

QString errorOf(const std::function<void()> &work)
{
    try {
        work();
        return {};
    } catch (const Error &error) {
        return error.toString();
    } catch (const std::bad_alloc &) {
        return OutOfMemoryError().toString();
    } catch (const std::exception &error) {
        return QString::fromLocal8Bit(error.what());
    }
}

} // namespace

BackgroundWork::BackgroundWork(QObject *parent) : QObject(parent) {}

void BackgroundWork::run(std::function<void()> work,
                         const std::function<void(const QString &)> &done)
{
    m_running = true;
    const bool started = BackgroundThread::tryStart(
        [this, work = std::move(work), done, address = m_mailbox.address()] {
            const QString error = errorOf(work);
            // The address drops this when the object has gone.
            address.post([this, done, error] { finish(done, error); });
        });
    if (!started)
        finish(done, tr("The system has no thread left for this."));
}

void BackgroundWork::finish(const std::function<void(const QString &)> &done, const QString &error)
{
    m_running = false;
    done(error);
}
