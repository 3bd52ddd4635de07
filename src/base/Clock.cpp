#include "base/Clock.h"

#include <thread>

Clock::Milliseconds Clock::sinceEpoch() const
{
    return std::chrono::duration_cast<Milliseconds>(
        std::chrono::system_clock::now().time_since_epoch());
}

Clock::Milliseconds Clock::steady() const
{
    return std::chrono::duration_cast<Milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

void Clock::sleep(Milliseconds time)
{
    std::this_thread::sleep_for(time);
}
