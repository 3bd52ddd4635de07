#pragma once

#include "base/IAbortCheck.h"

#include <atomic>

/** Says stop once it was told to. Any thread. */
class FlagAbortCheck : public IAbortCheck
{
public:
    void abort() { m_aborted = true; }
    int abortState() const override { return m_aborted ? 1 : 0; }

private:
    std::atomic<bool> m_aborted{false};
};
