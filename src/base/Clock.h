#pragma once

#include <chrono>

/**
 * Time for those who wait. A test passes one of its own, in which waiting takes no time. Any
 * thread.
 */
class Clock
{
public:
    using Milliseconds = std::chrono::milliseconds;

    virtual ~Clock() = default;

    /** Since the epoch, as the computer is set. */
    virtual Milliseconds sinceEpoch() const;
    /** Since some moment in the past; never set back. */
    virtual Milliseconds steady() const;
    /** Holds up the calling thread. */
    virtual void sleep(Milliseconds time);
};
