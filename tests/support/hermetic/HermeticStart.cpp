// Part of every test: one that is started by hand starts itself anew by the launcher. With the
// variable set it runs as it stands, for a debugger: HOOPLINE_TEST_FOLDER=none gdb tst_name

#include "Leftovers.h"

#include <cstdlib>
#include <unistd.h>
#include <vector>

namespace {

__attribute__((constructor)) void startHermetically(int argc, char **argv)
{
    if (std::getenv(FolderVariable))
        return;
    std::vector<char *> arguments(argv, argv + argc);
    char launcher[] = HERMETIC_LAUNCHER;
    char self[] = "/proc/self/exe";
    char path[4096];
    const ssize_t length = readlink(self, path, sizeof(path) - 1);
    if (length <= 0)
        return;
    path[length] = '\0';
    arguments.at(0) = path;
    arguments.insert(arguments.begin(), launcher);
    arguments.push_back(nullptr);
    execv(launcher, arguments.data());
}

} // namespace
