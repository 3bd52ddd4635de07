#include "cli/Interrupt.h"

#include <atomic>
#include <csignal>

namespace {

std::atomic<bool> interruptRequested{false};
static_assert(std::atomic<bool>::is_always_lock_free, "signal handlers must not lock");

extern "C" void noteSignal(int signal)
{
    interruptRequested = true;
    std::signal(signal, SIG_DFL);
}

} // namespace

void Interrupt::install()
{
    std::signal(SIGINT, noteSignal);
    std::signal(SIGTERM, noteSignal);
}

bool Interrupt::requested()
{
    return interruptRequested;
}
