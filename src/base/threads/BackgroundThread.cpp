#include "base/threads/BackgroundThread.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <QCoreApplication>
#include <system_error>
#include <thread>
#include <utility>

namespace {

constexpr std::chrono::seconds LongestWait(2);

/** The threads that run. Each holds a share, so that it may outlive the end of main(). */
class Running
{
public:
    void enter()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_count;
    }
    void leave()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        --m_count;
        m_changed.notify_all();
    }
    void waitForAll()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait_for(lock, LongestWait, [this] { return m_count == 0; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_count = 0;
};

const std::shared_ptr<Running> &running()
{
    static const auto threads = std::make_shared<Running>();
    return threads;
}

} // namespace

void BackgroundThread::start(std::function<void()> work)
{
    static std::once_flag registered;
    std::call_once(registered, [] { qAddPostRoutine([] { running()->waitForAll(); }); });

    running()->enter();
    try {
        std::thread([threads = running(), work = std::move(work)]() mutable {
            try {
                work();
            } catch (...) {
                // There is nobody who could be told.
            }
            work = nullptr;
            threads->leave();
        }).detach();
    } catch (...) {
        running()->leave();
        throw;
    }
}

bool BackgroundThread::tryStart(std::function<void()> work)
{
    try {
        start(std::move(work));
        return true;
    } catch (const std::system_error &) {
        return false;
    }
}
