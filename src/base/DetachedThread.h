#pragma once

#include <functional>

/**
 * Runs @p work on a thread that nobody waits for, also when the process ends: for calls that
 * a dead drive may never let return. What @p work throws ends it and nothing else.
 * @return false when there is no thread to be had; @p work is not run then
 */
bool runDetached(std::function<void()> work);
