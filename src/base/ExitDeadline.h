#pragma once

#include <chrono>

/**
 * Ends the process when it does not end by itself. Taking the application down
 * waits for name look-ups that are under way, which on a dead network last many
 * seconds; by then nothing is left to save.
 */
class ExitDeadline
{
public:
    /** The process is gone @p limit from now, with @p exitCode if it comes to that. */
    static void start(std::chrono::milliseconds limit, int exitCode);
};
