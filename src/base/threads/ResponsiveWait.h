#pragma once

#include "base/IProgressAbortListener.h"

#include <chrono>

/**
 * Calls @p attempt(patience) until it gives something or the user has asked for the end,
 * and lets the user do so meanwhile. Nothing when the end was asked for; what is about to
 * be done is still waited for a moment. Returns within a few hundredths of a second then.
 * @param attempt waits that long at most and gives a std::optional
 */
template <class Attempt>
auto waitResponsively(IProgressAbortListener &listener, Attempt attempt)
{
    constexpr std::chrono::milliseconds betweenLooks(20);
    constexpr std::chrono::milliseconds lastMoment(40);
    for (;;) {
        if (auto result = attempt(betweenLooks))
            return result;
        listener.stayResponsive();
        if (listener.abortState() != 0)
            return attempt(lastMoment);
    }
}
