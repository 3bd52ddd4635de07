// hermetic PROGRAM [ARGUMENT...]
// Runs a test in a folder of its own, which is its home and takes its settings and temporary
// files, and without what the environment of the caller would change. All that the test leaves
// behind goes with the folder, also when the caller or the test is killed.

#include "Folder.h"
#include "Leftovers.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char **environ; // NOLINT(readability-redundant-declaration)

namespace {

constexpr int CannotRun = 127;

bool changesTheTest(const std::string &variable)
{
    for (const char *beginning : {"QT_", "XDG_", "LC_", "LANG", "DBUS_", "KDE_", "GTK_",
                                  "DISPLAY=", "WAYLAND_DISPLAY=", "DESKTOP_SESSION=", "GNOME_"}) {
        if (variable.compare(0, std::strlen(beginning), beginning) == 0)
            return true;
    }
    const std::string name = variable.substr(0, variable.find('='));
    return name.size() > 6 && strcasecmp(name.c_str() + name.size() - 6, "_proxy") == 0;
}

void setEnvironment(const Folder &folder)
{
    std::vector<std::string> unwanted;
    for (char **variable = environ; *variable; ++variable) {
        if (changesTheTest(*variable))
            unwanted.emplace_back(*variable, std::strcspn(*variable, "="));
    }
    for (const std::string &name : unwanted)
        unsetenv(name.c_str());
    const std::filesystem::path &path = folder.path();
    setenv(FolderVariable, path.c_str(), 1);
    setenv("HOOPLINE_TEST_MOUNTS", folder.mounts().c_str(), 1);
    setenv("HOME", (path / "home").c_str(), 1);
    setenv("XDG_CONFIG_HOME", (path / "home/config").c_str(), 1);
    setenv("XDG_DATA_HOME", (path / "home/data").c_str(), 1);
    setenv("XDG_CACHE_HOME", (path / "home/cache").c_str(), 1);
    setenv("XDG_RUNTIME_DIR", (path / "run").c_str(), 1);
    setenv("TMPDIR", (path / "tmp").c_str(), 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
}

sigset_t awaitedSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGCHLD, SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, signal);
    return signals;
}

/** Doesn't return unless the program can't be run. */
void become(char **arguments, const Folder &folder, const sigset_t &mask)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    sigprocmask(SIG_SETMASK, &mask, nullptr);
    setEnvironment(folder);
    execvp(arguments[0], arguments);
    std::fprintf(stderr, "hermetic: %s: %s\n", arguments[0], std::strerror(errno));
    _exit(CannotRun);
}

/** As waitpid() tells it. A signal to this process ends the test. */
int waitFor(pid_t test, const sigset_t &signals)
{
    int status = 0;
    while (waitpid(test, &status, WNOHANG) == 0) {
        int signal = 0;
        sigwait(&signals, &signal);
        if (signal != SIGCHLD)
            kill(test, SIGKILL);
    }
    return status;
}

int runIn(const Folder &folder, char **arguments)
{
    const sigset_t signals = awaitedSignals();
    sigset_t before;
    sigprocmask(SIG_BLOCK, &signals, &before);
    // When the caller is killed this process is told, and ends what it has started.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    const pid_t test = fork();
    if (test < 0)
        throw std::runtime_error("cannot start another process");
    if (test == 0)
        become(arguments, folder, before);
    return waitFor(test, signals);
}

/** Ends as the test has ended. */
int endAs(int status)
{
    if (WIFEXITED(status))
        return WEXITSTATUS(status);
    const rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    std::signal(WTERMSIG(status), SIG_DFL);
    raise(WTERMSIG(status));
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "hermetic PROGRAM [ARGUMENT...]\n");
        return CannotRun;
    }
    try {
        Folder::sweep();
        int status = 0;
        {
            const Folder folder;
            status = runIn(folder, argv + 1);
        }
        return endAs(status);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "hermetic: %s\n", error.what());
        return CannotRun;
    }
}
