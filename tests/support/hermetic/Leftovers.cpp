#include "Leftovers.h"

#include "Folder.h"

#include <csignal>
#include <fstream>
#include <string>
#include <sys/ipc.h>
#include <sys/mount.h>
#include <sys/sem.h>
#include <sys/shm.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr useconds_t PollInterval = 2000;
constexpr int Polls = 500; // a second

bool startsWith(const std::string &text, const std::string &beginning)
{
    return text.compare(0, beginning.size(), beginning) == 0;
}

/** Those that were started with the folder as theirs; a process that has ended shows nothing. */
std::vector<pid_t> processesOf(const fs::path &folder)
{
    const std::string mark = std::string(FolderVariable) + '=' + folder.string();
    std::vector<pid_t> found;
    std::error_code error;
    for (const fs::directory_entry &entry : fs::directory_iterator("/proc", error)) {
        const int process = std::atoi(entry.path().filename().c_str());
        if (process <= 0 || process == getpid())
            continue;
        std::ifstream environment(entry.path() / "environ");
        std::string variable;
        while (std::getline(environment, variable, '\0')) {
            if (variable == mark) {
                found.push_back(process);
                break;
            }
        }
    }
    return found;
}

void killProcessesOf(const fs::path &folder)
{
    std::vector<pid_t> processes = processesOf(folder);
    for (int poll = 0; poll < Polls && !processes.empty(); ++poll) {
        for (const pid_t process : processes)
            kill(process, SIGKILL);
        usleep(PollInterval);
        processes = processesOf(folder);
    }
}

void unmountBelow(const fs::path &folder)
{
    std::ifstream mounts("/proc/self/mounts");
    std::string device;
    std::string place;
    std::string rest;
    while (mounts >> device >> place && std::getline(mounts, rest)) {
        if (startsWith(place, folder.string() + '/'))
            umount2(place.c_str(), MNT_DETACH);
    }
}

/** Whether a semaphore's last user is there no more. */
bool isAbandoned(int semaphore)
{
    const pid_t user = semctl(semaphore, 0, GETPID);
    return user <= 0 || kill(user, 0) != 0;
}

/** A killed process leaves its key files, and what they name would stay until the next boot. */
void removeNamedBy(const fs::path &keyFile)
{
    // As Qt makes its keys. Another file may have the same one, hence the second look.
    const key_t key = ftok(keyFile.c_str(), 'Q');
    if (key == -1)
        return;
    shmid_ds memory = {};
    const int block = shmget(key, 0, 0);
    if (block >= 0 && shmctl(block, IPC_STAT, &memory) == 0 && memory.shm_nattch == 0)
        shmctl(block, IPC_RMID, nullptr);
    const int semaphore = semget(key, 0, 0);
    if (semaphore >= 0 && isAbandoned(semaphore))
        semctl(semaphore, 0, IPC_RMID);
}

void openAndRelease(const fs::path &folder)
{
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder)) {
        if (startsWith(entry.path().filename().string(), "qipc_"))
            removeNamedBy(entry.path());
        if (entry.is_directory() && !entry.is_symlink())
            fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add);
    }
}

} // namespace

void removeWithLeftovers(const fs::path &folder) noexcept
{
    try {
        killProcessesOf(folder);
        for (const fs::path &place : {Folder::mountsOf(folder), folder}) {
            unmountBelow(place);
            if (fs::exists(place))
                openAndRelease(place);
            fs::remove_all(place);
        }
    } catch (const std::exception &) {
        // The next start tries again.
    }
}
