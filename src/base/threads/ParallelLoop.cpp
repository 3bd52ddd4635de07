#include "base/threads/ParallelLoop.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace {

/** More readers than this only hinder each other on a disk. */
constexpr unsigned MaximumThreads = 8;

} // namespace

void parallelLoop(int count, const std::function<bool()> &stops,
                  const std::function<void(int)> &body)
{
    std::atomic<int> next{0};
    std::atomic<bool> failed{false};
    std::exception_ptr failure;
    std::mutex mutex;
    const auto work = [&] {
        try {
            for (int i = next++; i < count && !failed && !stops(); i = next++)
                body(i);
        } catch (...) {
            const std::lock_guard<std::mutex> lock(mutex);
            failed = true;
            failure = std::current_exception();
        }
    };
    const unsigned wanted = std::clamp(std::thread::hardware_concurrency(), 1U, MaximumThreads);
    std::vector<std::thread> helpers;
    helpers.reserve(wanted);
    try {
        while (helpers.size() + 1 < std::min(wanted, unsigned(std::max(1, count))))
            helpers.emplace_back(work);
    } catch (const std::system_error &) {
        // With fewer threads it takes longer.
    }
    work();
    for (std::thread &helper : helpers)
        helper.join();
    if (failure)
        std::rethrow_exception(failure);
}
