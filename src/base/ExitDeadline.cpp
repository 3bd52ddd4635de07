#include "base/ExitDeadline.h"

#include <cstdlib>
#include <thread>

void ExitDeadline::start(std::chrono::milliseconds limit, int exitCode)
{
    std::thread([limit, exitCode] {
        std::this_thread::sleep_for(limit);
        std::_Exit(exitCode);
    }).detach();
}
