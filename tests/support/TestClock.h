#pragma once

#include "base/Clock.h"

/** Stands still until a test moves it on; who sleeps by it moves it on at once. */
class TestClock : public Clock
{
public:
    Milliseconds sinceEpoch() const override { return time; }
    Milliseconds steady() const override { return time; }
    void sleep(Milliseconds pause) override { time += pause; }

    Milliseconds time = std::chrono::hours(24 * 365 * 50);
};
