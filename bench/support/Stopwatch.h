#pragma once

#include <chrono>
#include <cstdio>
#include <ctime>

/** Wall time and the process's processor time since it was made. */
class Stopwatch
{
public:
    /** Writes a line that a script can read: what, files, seconds of both kinds. */
    void print(const char *what, int files) const
    {
        const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - m_start;
        const double processor = double(std::clock() - m_processorStart) / CLOCKS_PER_SEC;
        std::printf("%s: %d files, %.3f s, %.3f s of processor time\n", what, files, wall.count(),
                    processor);
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    std::clock_t m_processorStart = std::clock();
};
