#include "cli/Interrupt.h"

#include <atomic>
#include <csignal>

namespace {

std::atomic<int> receivedSignal{0};
static_assert(std::atomic<int>::is_always_lock_free, "signal handlers must not lock");

extern "C" void noteSignal(int signal)
{
    receivedSignal = signal;
    std::signal(signal, SIG_DFL);
}

} // namespace

void Interrupt::install()
{
    std::signal(SIGINT, noteSignal);
    std::signal(SIGTERM, noteSignal);
    std::signal(SIGHUP, noteSignal);
}

int Interrupt::received()
{
    return receivedSignal;
}
