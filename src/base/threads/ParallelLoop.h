#pragma once

#include <functional>

/**
 * Calls @p body with 0 to @p count - 1, on as many threads as the machine has for it, this
 * one among them, and returns when all have ended. What @p body throws ends the loop early
 * and is thrown here. No new call begins once @p stops answers true.
 */
void parallelLoop(int count, const std::function<bool()> &stops,
                  const std::function<void(int)> &body);
