#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

/** What a benchmark found out, as lines that bench/table.py reads. */
namespace Figure {

inline double secondsOf(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

inline void print(const char *name, double value)
{
    std::printf("figure\t%s\t%.6g\n", name, value);
    std::fflush(stdout);
}

/** Milliseconds of the processor that @p work takes, on this thread alone or on all of them. */
inline double milliseconds(const std::function<void()> &work,
                           clockid_t clock = CLOCK_THREAD_CPUTIME_ID)
{
    const double start = secondsOf(clock);
    work();
    return (secondsOf(clock) - start) * 1e3;
}

/** The one in the middle: neither a lucky nor an unlucky moment moves it. */
inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

} // namespace Figure
