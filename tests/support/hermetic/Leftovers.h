#pragma once

#include <filesystem>

/**
 * Takes back what the processes of a test have left, and the folder with it. What can't be
 * removed stays; nothing is thrown.
 */
void removeWithLeftovers(const std::filesystem::path &folder) noexcept;

/** The variable that tells a process the folder of its start. */
constexpr char FolderVariable[] = "HOOPLINE_TEST_FOLDER";
