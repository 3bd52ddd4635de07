#pragma once

#include <functional>

/**
 * Threads that nobody has to wait for: what they work on may never answer, as a file
 * of a network drive that went away, and must not take the program with it.
 */
class BackgroundThread
{
public:
    /**
     * Runs @p work, which must own all that it touches; what it throws ends it and nothing
     * else. The end of the application waits two seconds at most for those that still run,
     * so that none is met by the end of the process in the middle of its work.
     * @throws std::system_error when there is no thread to be had
     */
    static void start(std::function<void()> work);

    /** The same, but @return false when there is no thread to be had. */
    static bool tryStart(std::function<void()> work);
};
