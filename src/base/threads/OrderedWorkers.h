#pragma once

#include "base/threads/BackgroundThread.h"
#include "base/threads/FlagAbortCheck.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <QtGlobal>
#include <system_error>
#include <utility>
#include <vector>

/** How much of the machine workers may take. */
struct WorkerLimits
{
    int threads;
    qint64 memory; ///< bytes
};

/**
 * Does a list of jobs on several threads and hands the results back in the order of
 * the jobs, so that what becomes of them doesn't depend on the number of threads.
 *
 * What is under way at a time is bounded by memory rather than by number: a job is
 * begun when its need, together with that of those begun and of the results not yet
 * taken, stays within the limit. One job alone may exceed it.
 *
 * Nothing here ever waits for a job: one that never returns is left behind with its
 * thread and with its own hold on all that it needs.
 *
 * @tparam Job has `qint64 memoryNeed() const`, in bytes
 * @tparam Result has the same; is moved
 */
template <class Job, class Result>
class OrderedWorkers
{
public:
    /** Does one job on any thread; must return soon after the check says stop. May throw. */
    using Work = std::function<Result(const Job &, const IAbortCheck &)>;

    /** Begins. @throws std::system_error when there is no thread to be had */
    OrderedWorkers(std::vector<Job> jobs, Work work, const WorkerLimits &limits)
        : m_shared(std::make_shared<Shared>(std::move(jobs), std::move(work), limits.memory))
    {
        const std::size_t useful =
            std::min(m_shared->jobs.size(), std::size_t(std::max(1, limits.threads)));
        for (std::size_t i = 0; i < useful; ++i) {
            try {
                BackgroundThread::start([shared = m_shared] { shared->run(); });
            } catch (const std::system_error &) {
                if (i == 0)
                    throw;
                break;
            }
        }
    }

    /** Gives up what is not done, without a wait. */
    ~OrderedWorkers() { m_shared->abort(); }

    OrderedWorkers(const OrderedWorkers &) = delete;
    OrderedWorkers &operator=(const OrderedWorkers &) = delete;

    /**
     * The result of the next job; nothing when it isn't there within @p patience. Throws
     * what the job threw. Not to be called more often than there are jobs.
     */
    std::optional<Result> take(std::chrono::milliseconds patience)
    {
        return m_shared->take(patience);
    }

    /**
     * Begins no further job, tells those that run to stop, and gives them @p patience to
     * do so; what does not is left behind.
     */
    void abort(std::chrono::milliseconds patience)
    {
        m_shared->abort();
        m_shared->waitForEnd(patience);
    }

private:
    struct Outcome
    {
        std::optional<Result> result;
        std::exception_ptr error;
        qint64 memory = 0;

        bool isThere() const { return result || error; }
    };

    struct Shared
    {
        Shared(std::vector<Job> jobs_, Work work_, qint64 memoryLimit_)
            : jobs(std::move(jobs_)), work(std::move(work_)), memoryLimit(memoryLimit_)
        {
        }

        void run()
        {
            std::unique_lock<std::mutex> lock(mutex);
            for (;;) {
                roomMade.wait(lock, [this] { return isOver() || hasRoom(); });
                if (isOver())
                    return;
                ++busy;
                const std::size_t index = next++;
                const qint64 need = jobs[index].memoryNeed();
                memoryInUse += need;
                outcomes.emplace_back();
                lock.unlock();
                Outcome outcome = tryToDo(jobs[index]);
                lock.lock();
                memoryInUse += outcome.memory - need;
                outcomes[index - taken] = std::move(outcome);
                --busy;
                roomMade.notify_all();
                resultThere.notify_all();
            }
        }

        Outcome tryToDo(const Job &job)
        {
            Outcome outcome;
            try {
                outcome.result = work(job, stop);
                outcome.memory = outcome.result->memoryNeed();
            } catch (...) {
                outcome.error = std::current_exception();
            }
            return outcome;
        }

        std::optional<Result> take(std::chrono::milliseconds patience)
        {
            std::unique_lock<std::mutex> lock(mutex);
            const bool there = resultThere.wait_for(
                lock, patience, [this] { return !outcomes.empty() && outcomes.front().isThere(); });
            if (!there)
                return std::nullopt;
            Outcome outcome = std::move(outcomes.front());
            outcomes.pop_front();
            ++taken;
            memoryInUse -= outcome.memory;
            roomMade.notify_all();
            lock.unlock();
            if (outcome.error)
                std::rethrow_exception(outcome.error);
            return std::move(outcome.result);
        }

        void abort()
        {
            const std::lock_guard<std::mutex> lock(mutex);
            stop.abort();
            roomMade.notify_all();
        }

        void waitForEnd(std::chrono::milliseconds patience)
        {
            std::unique_lock<std::mutex> lock(mutex);
            resultThere.wait_for(lock, patience, [this] { return busy == 0; });
        }

        bool isOver() const { return stop.abortState() != 0 || next == jobs.size(); }
        bool hasRoom() const
        {
            return memoryInUse == 0 || memoryInUse + jobs[next].memoryNeed() <= memoryLimit;
        }

        const std::vector<Job> jobs;
        const Work work;
        const qint64 memoryLimit;
        FlagAbortCheck stop;
        std::mutex mutex;
        std::condition_variable roomMade;
        std::condition_variable resultThere;
        // Of the jobs that were begun and whose results were not yet taken.
        std::deque<Outcome> outcomes;
        std::size_t next = 0;
        std::size_t taken = 0;
        int busy = 0;
        qint64 memoryInUse = 0;
    };

    std::shared_ptr<Shared> m_shared;
};
