#pragma once

#include <array>
#include <atomic>

/** The environment variable with the path of the file that holds the plan. */
constexpr char FaultPlanVariable[] = "HOOPLINE_FAULT_PLAN";

/**
 * Which calls of a process to the disk fail, and how: the content of a file that the test
 * and the process, with the library faulty_disk loaded ahead of all others, both map. The
 * test may change it while the process runs.
 */
struct FaultPlan
{
    static constexpr int Never = 0;
    static constexpr int Kill = -1;
    static constexpr int LongestPath = 1024;

    /** Calls for what lies elsewhere go by; absolute, without a slash at its end. */
    std::array<char, LongestPath> folder;

    /** As in errno; or the process is killed at the call, a write when it is half done. */
    std::atomic<int> error;

    /** Number of the call that fails, from 1, among those that can fail in this way. */
    std::atomic<int> first;

    /** Whether all calls after it fail as well, as on a disk that stays full. */
    std::atomic<bool> lasting;

    /** Set when the first call has failed; the process has written "struck" to stdout then. */
    std::atomic<bool> struck;

    /** Calls until now that can fail in this way. */
    std::atomic<int> calls;

    /**
     * Whether the process gets a SIGTERM as soon as it has a handler for it, and another one
     * at each message of its window after the first failure. No call fails from then on.
     */
    std::atomic<bool> ends;
};
