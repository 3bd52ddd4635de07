#include "online/CrashReportWriter.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX

#include "base/GLogServer.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <execinfo.h>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace {

constexpr std::size_t MaxPath = 4096;
constexpr std::size_t MaxHead = 4096;
constexpr int MaxFrames = 128;
constexpr std::size_t AlternateStackSize = std::size_t(256) * 1024;

struct SignalName
{
    int number;
    const char *name;
};

constexpr SignalName CrashSignals[] = {{SIGSEGV, "SIGSEGV"}, {SIGBUS, "SIGBUS"},
                                       {SIGILL, "SIGILL"},   {SIGFPE, "SIGFPE"},
                                       {SIGABRT, "SIGABRT"}, {SIGTRAP, "SIGTRAP"}};

// All that the handler reads, laid down beforehand.
std::array<char, MaxPath> reportPath;
std::array<char, MaxHead> reportHead;
std::size_t reportHeadSize = 0;
const LogRing *logLines = nullptr;
std::array<void *, MaxFrames> frames;
// An overflow of the stack leaves none for the handler.
alignas(16) std::array<char, AlternateStackSize> alternateStack;

void writeText(int file, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = write(file, text.data(), text.size());
        if (written <= 0)
            return;
        text.remove_prefix(std::size_t(written));
    }
}

void writeNumber(int file, std::uintptr_t number, unsigned base)
{
    std::array<char, 64> digits;
    auto first = digits.end();
    do {
        *--first = "0123456789abcdef"[number % base];
        number /= base;
    } while (number != 0);
    writeText(file, {&*first, std::size_t(digits.end() - first)});
}

const char *nameOf(int signal)
{
    for (const SignalName &entry : CrashSignals) {
        if (entry.number == signal)
            return entry.name;
    }
    return "unknown";
}

void writeCause(int file, int signal, const siginfo_t *info)
{
    writeText(file, "Crashed: ");
    writeNumber(file, std::uintptr_t(time(nullptr)), 10);
    writeText(file, " seconds since 1970\nSignal: ");
    writeText(file, nameOf(signal));
    writeText(file, " (");
    writeNumber(file, std::uintptr_t(signal), 10);
    writeText(file, ")\n");
    if (info && info->si_code > 0) {
        writeText(file, "Address: 0x");
        writeNumber(file, reinterpret_cast<std::uintptr_t>(info->si_addr), 16);
        writeText(file, "\n");
    }
}

void writeLog(int file)
{
    writeText(file, "\nLast log lines:\n");
    for (std::size_t i = 0; i < LogRing::LineCount; ++i) {
        const std::string_view line = logLines->line(i);
        if (line.empty())
            continue;
        writeText(file, line);
        writeText(file, "\n");
    }
}

void writeReport(int signal, const siginfo_t *info)
{
    const int file =
        open(reportPath.data(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file < 0)
        return;
    writeText(file, {reportHead.data(), reportHeadSize});
    writeCause(file, signal, info);
    writeText(file, "\nBacktrace:\n");
    backtrace_symbols_fd(frames.data(), backtrace(frames.data(), MaxFrames), file);
    writeLog(file);
    close(file);
}

void setHandlers(void (*handler)(int, siginfo_t *, void *))
{
    struct sigaction action = {};
    if (handler) {
        action.sa_sigaction = handler;
        action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    } else {
        action.sa_handler = SIG_DFL;
    }
    for (const SignalName &entry : CrashSignals)
        sigaction(entry.number, &action, nullptr);
}

// The default action comes back first, so that a fault in here ends the process;
// the signal raised again waits until the handler returns and ends it as told.
void handleCrash(int signal, siginfo_t *info, void *)
{
    setHandlers(nullptr);
    writeReport(signal, info);
    raise(signal);
}

} // namespace

void CrashReportWriter::install(const QByteArray &path, const QByteArray &head)
{
    if (std::size_t(path.size()) >= MaxPath)
        return;
    std::copy(path.begin(), path.end(), reportPath.begin());
    reportPath[std::size_t(path.size())] = '\0';
    reportHeadSize = std::min(std::size_t(head.size()), MaxHead);
    std::copy_n(head.begin(), reportHeadSize, reportHead.begin());
    logLines = &theLogServer()->recentLines();
    // The first call loads the unwinder, which takes memory.
    backtrace(frames.data(), MaxFrames);

    stack_t stack = {};
    stack.ss_sp = alternateStack.data();
    stack.ss_size = alternateStack.size();
    sigaltstack(&stack, nullptr);
    setHandlers(&handleCrash);
}

#else

void CrashReportWriter::install(const QByteArray &, const QByteArray &) {}

#endif
