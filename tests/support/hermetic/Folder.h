#pragma once

#include <filesystem>

/**
 * The folder of one start of a test, in memory where there is room: its home, its settings and its
 * temporary files. Whatever the test started or left in the kernel goes with it. Short, since the
 * sockets below it have names of 107 bytes at most.
 */
class Folder
{
public:
    /** Throws std::runtime_error or std::filesystem::filesystem_error when there is none to be had.
     */
    Folder();
    ~Folder();

    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    const std::filesystem::path &path() const { return m_path; }
    /** Where the test may mount drives: what lies in memory below /dev counts as none. */
    std::filesystem::path mounts() const { return mountsOf(m_path); }
    static std::filesystem::path mountsOf(const std::filesystem::path &folder);

    /** Removes what starts that were killed have left. */
    static void sweep();

private:
    std::filesystem::path m_path;
    /** Locked as long as somebody lives in the folder. */
    int m_descriptor = -1;
};
