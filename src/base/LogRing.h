#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <string_view>

/**
 * The last log lines, kept for a crash report. Writers on any thread take no
 * lock and allocate nothing, and a signal handler may read at any moment: a
 * line that is being written just then is passed over or comes out cut short.
 */
class LogRing
{
public:
    static constexpr std::size_t LineCount = 64;
    /** In bytes; the rest of a longer line is dropped. */
    static constexpr std::size_t LineSize = 256;

    void append(std::string_view line);

    /** The line at @p index, 0 the oldest one kept; empty when there is none. Signal-safe. */
    std::string_view line(std::size_t index) const;

private:
    struct Slot
    {
        std::atomic<std::size_t> length{0};
        std::array<char, LineSize> text;
    };

    std::array<Slot, LineCount> m_slots;
    std::atomic<std::size_t> m_next{0};
};
