#include "app/application/TerminationSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <QSocketNotifier>
#include <unistd.h>

namespace {

constexpr int Signals[] = {SIGTERM, SIGINT, SIGHUP};

// A handler may do next to nothing: it writes a byte into a pipe that the event loop reads.
std::array<int, 2> pipeEnds{-1, -1};

extern "C" void noteTermination(int)
{
    const int error = errno;
    (void)!write(pipeEnds[1], "", 1);
    errno = error;
}

void setHandler(int signal, void (*handler)(int))
{
    struct sigaction before = {};
    if (sigaction(signal, nullptr, &before) != 0 || before.sa_handler == SIG_IGN)
        return;
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals()
{
    setHandler(SIGPIPE, SIG_IGN);
    if (pipe(pipeEnds.data()) != 0)
        return;
    for (const int end : pipeEnds) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    m_notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &TerminationSignals::readSignals);
    for (const int signal : Signals)
        setHandler(signal, &noteTermination);
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier)
        return;
    for (const int signal : Signals)
        setHandler(signal, SIG_DFL);
    m_notifier.reset();
    close(pipeEnds[0]);
    close(pipeEnds[1]);
}

void TerminationSignals::readSignals()
{
    std::array<char, 16> bytes;
    while (read(pipeEnds[0], bytes.data(), bytes.size()) > 0) {
    }
    emit received();
}
