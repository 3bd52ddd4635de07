#include "base/LogRing.h"

#include <algorithm>

void LogRing::append(std::string_view line)
{
    Slot &slot = m_slots[m_next.fetch_add(1, std::memory_order_acq_rel) % LineCount];
    slot.length.store(0, std::memory_order_release);
    const std::size_t length = std::min(line.size(), LineSize);
    std::copy_n(line.data(), length, slot.text.data());
    slot.length.store(length, std::memory_order_release);
}

std::string_view LogRing::line(std::size_t index) const
{
    const std::size_t oldest = m_next.load(std::memory_order_acquire);
    const Slot &slot = m_slots[(oldest + index) % LineCount];
    return {slot.text.data(), slot.length.load(std::memory_order_acquire)};
}
