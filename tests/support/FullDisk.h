#pragma once

#include <csignal>
#include <sys/resource.h>

/** Files can grow no further than so many bytes while it lives: stands in for a full disk. */
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes = 1) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit full{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int);
};
