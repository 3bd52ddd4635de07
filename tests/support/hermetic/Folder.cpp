#include "Folder.h"

#include "Leftovers.h"

#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr char Prefix[] = "hl-test-";
constexpr std::uintmax_t Room = 256 * 1024 * 1024;

/**
 * A file system on disk gives the same few inodes out again and again. Keys of shared memory are
 * made of inodes, so that programs in different folders would take each other for their primary;
 * one in memory counts on.
 */
fs::path base()
{
    const fs::path memory = "/dev/shm";
    std::error_code error;
    const bool roomy = fs::space(memory, error).available >= Room;
    return !error && roomy && access(memory.c_str(), W_OK) == 0 ? memory : "/tmp";
}

/** Locks the folder; negative when somebody else lives there, or when it is not ours. */
int moveIn(const fs::path &folder)
{
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat opened = {};
    struct stat named = {};
    if (descriptor >= 0 && fstat(descriptor, &opened) == 0 && opened.st_uid == geteuid() &&
        flock(descriptor, LOCK_EX | LOCK_NB) == 0 && lstat(folder.c_str(), &named) == 0 &&
        named.st_ino == opened.st_ino)
        return descriptor;
    if (descriptor >= 0)
        close(descriptor);
    return -1;
}

} // namespace

Folder::Folder()
{
    // Somebody who sweeps may take a folder away before it is locked.
    while (m_descriptor < 0) {
        std::string name = base() / (std::string(Prefix) + "XXXXXX");
        if (!mkdtemp(name.data()))
            throw std::runtime_error("cannot make a folder in " + base().string());
        m_path = name;
        m_descriptor = moveIn(m_path);
    }
    // Open for passing through, as a home is: a test becomes another user and tries the door.
    for (const char *place : {"", "home", "home/config", "home/data", "home/cache", "tmp"}) {
        fs::create_directories(m_path / place);
        fs::permissions(m_path / place, fs::perms(0711));
    }
    fs::create_directories(m_path / "run");
    fs::permissions(m_path / "run", fs::perms(0700));
    fs::create_directories(mounts());
}

Folder::~Folder()
{
    removeWithLeftovers(m_path);
    close(m_descriptor);
}

fs::path Folder::mountsOf(const fs::path &folder)
{
    return "/tmp" / folder.filename();
}

void Folder::sweep()
{
    std::error_code error;
    for (const fs::directory_entry &entry : fs::directory_iterator(base(), error)) {
        if (entry.path().filename().string().rfind(Prefix, 0) != 0)
            continue;
        const int descriptor = moveIn(entry.path());
        if (descriptor < 0)
            continue;
        removeWithLeftovers(entry.path());
        close(descriptor);
    }
}
