// A library to be loaded ahead of the C library (LD_PRELOAD): calls that touch the files
// below a folder fail when the plan says so. It stands in for a disk that is full, breaks,
// or belongs to a process that dies between two calls.

#include "faults/FaultPlan.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int Descriptors = 4096;

/** What a call does to the disk. */
enum class DiskCall {
    Open,   ///< a file or a folder that is there
    Create, ///< a file, which may be there
    Read,
    Write,
    Sync,
    Alter, ///< renames, links or cuts a file, or makes a folder
    Remove
};

FaultPlan *plan = nullptr;
std::array<std::atomic<bool>, Descriptors> watched;

template <class Function>
Function *next(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

using OpenCall = int(const char *, int, ...);
using OpenAtCall = int(int, const char *, int, ...);
using ReadCall = ssize_t(int, void *, size_t);
using ReadAtCall = ssize_t(int, void *, size_t, off_t);
using WriteCall = ssize_t(int, const void *, size_t);
using WriteAtCall = ssize_t(int, const void *, size_t, off_t);

__attribute__((constructor)) void readPlan()
{
    const char *path = std::getenv(FaultPlanVariable);
    const int file = path ? next<OpenCall>("open")(path, O_RDWR | O_CLOEXEC) : -1;
    if (file < 0)
        return;
    void *memory = mmap(nullptr, sizeof(FaultPlan), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    next<int(int)>("close")(file);
    if (memory != MAP_FAILED)
        plan = static_cast<FaultPlan *>(memory);
}

bool isBelow(const char *path)
{
    const char *folder = plan->folder.data();
    const std::size_t length = std::strlen(folder);
    return std::strncmp(path, folder, length) == 0 && (path[length] == 0 || path[length] == '/');
}

bool isWatched(int descriptor)
{
    return plan && descriptor >= 0 && descriptor < Descriptors && watched[std::size_t(descriptor)];
}

bool isWatched(int directory, const char *path)
{
    if (!plan || !path)
        return false;
    if (*path == '/')
        return isBelow(path);
    if (directory != AT_FDCWD)
        return isWatched(directory);
    std::array<char, PATH_MAX> current;
    return getcwd(current.data(), current.size()) && isBelow(current.data());
}

void watch(int descriptor, bool yes)
{
    if (descriptor >= 0 && descriptor < Descriptors)
        watched[std::size_t(descriptor)] = yes;
}

bool changesTheDisk(DiskCall call)
{
    return call != DiskCall::Open && call != DiskCall::Read;
}

/** A full disk can still be read and tidied up; between two looks a death makes no difference. */
bool canFail(DiskCall call, int error)
{
    switch (error) {
    case FaultPlan::Never:
        return false;
    case FaultPlan::Kill:
    case EROFS:
        return changesTheDisk(call);
    case ENOSPC:
        return changesTheDisk(call) && call != DiskCall::Remove;
    default:
        return true;
    }
}

[[noreturn]] void die()
{
    kill(getpid(), SIGKILL);
    for (;;)
        pause();
}

/** Whether this call is to fail. */
bool strikes(DiskCall call)
{
    const int error = plan->error;
    if (!canFail(call, error))
        return false;
    const int number = ++plan->calls;
    const int first = plan->first;
    if (first == 0 || number < first || (number > first && !plan->lasting))
        return false;
    if (!plan->struck.exchange(true))
        (void)!next<WriteCall>("write")(STDOUT_FILENO, "struck\n", 7);
    if (error == FaultPlan::Kill && call != DiskCall::Write)
        die();
    errno = error;
    return true;
}

/** A write that fails for good gets half of its bytes down first, as one that is cut off does. */
template <class Write>
ssize_t failedWrite(size_t size, Write write)
{
    const int error = plan->error;
    const bool cut = error == FaultPlan::Kill || plan->lasting;
    const ssize_t written = cut && size > 1 ? write(size / 2) : -1;
    if (error == FaultPlan::Kill)
        die();
    errno = error;
    return written;
}

template <class Call>
int opened(int directory, const char *path, int flags, Call call)
{
    const bool mine = isWatched(directory, path);
    if (mine && strikes(flags & O_CREAT ? DiskCall::Create : DiskCall::Open))
        return -1;
    const int descriptor = call();
    watch(descriptor, mine);
    return descriptor;
}

/** Of a variadic call to open a file; there is none unless one may be made. */
#define MODE_AFTER(parameter)                                                                      \
    mode_t mode = 0;                                                                               \
    if ((parameter) & (O_CREAT | O_TMPFILE)) {                                                     \
        va_list rest;                                                                              \
        va_start(rest, parameter);                                                                 \
        mode = mode_t(va_arg(rest, unsigned));                                                     \
        va_end(rest);                                                                              \
    }

ssize_t readWith(const char *name, int descriptor, void *bytes, size_t size)
{
    if (isWatched(descriptor) && strikes(DiskCall::Read))
        return -1;
    return next<ReadCall>(name)(descriptor, bytes, size);
}

ssize_t readAtWith(const char *name, int descriptor, void *bytes, size_t size, off_t offset)
{
    if (isWatched(descriptor) && strikes(DiskCall::Read))
        return -1;
    return next<ReadAtCall>(name)(descriptor, bytes, size, offset);
}

ssize_t writeAtWith(const char *name, int descriptor, const void *bytes, size_t size, off_t offset)
{
    const auto real = [&](size_t part) {
        return next<WriteAtCall>(name)(descriptor, bytes, part, offset);
    };
    if (isWatched(descriptor) && strikes(DiskCall::Write))
        return failedWrite(size, real);
    return real(size);
}

/** The user wants the process to end, whatever signals do to it. */
void askToEnd()
{
    kill(getpid(), SIGTERM);
}

/** Of a call that changes something and tells by 0 that it went well. */
template <class Call>
int changed(bool mine, DiskCall kind, Call call)
{
    return mine && strikes(kind) ? -1 : call();
}

} // namespace

extern "C" {

int open(const char *path, int flags, ...)
{
    MODE_AFTER(flags)
    return opened(AT_FDCWD, path, flags, [&] { return next<OpenCall>("open")(path, flags, mode); });
}

int open64(const char *path, int flags, ...)
{
    MODE_AFTER(flags)
    return opened(AT_FDCWD, path, flags,
                  [&] { return next<OpenCall>("open64")(path, flags, mode); });
}

int openat(int directory, const char *path, int flags, ...)
{
    MODE_AFTER(flags)
    return opened(directory, path, flags,
                  [&] { return next<OpenAtCall>("openat")(directory, path, flags, mode); });
}

int openat64(int directory, const char *path, int flags, ...)
{
    MODE_AFTER(flags)
    return opened(directory, path, flags,
                  [&] { return next<OpenAtCall>("openat64")(directory, path, flags, mode); });
}

DIR *opendir(const char *path)
{
    if (isWatched(AT_FDCWD, path) && strikes(DiskCall::Open))
        return nullptr;
    return next<DIR *(const char *)>("opendir")(path);
}

int close(int descriptor)
{
    watch(descriptor, false);
    return next<int(int)>("close")(descriptor);
}

ssize_t read(int descriptor, void *bytes, size_t size)
{
    return readWith("read", descriptor, bytes, size);
}

ssize_t pread(int descriptor, void *bytes, size_t size, off_t offset)
{
    return readAtWith("pread", descriptor, bytes, size, offset);
}

ssize_t pread64(int descriptor, void *bytes, size_t size, off64_t offset)
{
    return readAtWith("pread64", descriptor, bytes, size, offset);
}

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    const auto real = [&](size_t part) {
        return next<WriteCall>("write")(descriptor, bytes, part);
    };
    if (isWatched(descriptor) && strikes(DiskCall::Write))
        return failedWrite(size, real);
    return real(size);
}

ssize_t pwrite(int descriptor, const void *bytes, size_t size, off_t offset)
{
    return writeAtWith("pwrite", descriptor, bytes, size, offset);
}

ssize_t pwrite64(int descriptor, const void *bytes, size_t size, off64_t offset)
{
    return writeAtWith("pwrite64", descriptor, bytes, size, offset);
}

int ftruncate(int descriptor, off_t size)
{
    return changed(isWatched(descriptor), DiskCall::Alter,
                   [&] { return next<int(int, off_t)>("ftruncate")(descriptor, size); });
}

int ftruncate64(int descriptor, off64_t size)
{
    return changed(isWatched(descriptor), DiskCall::Alter,
                   [&] { return next<int(int, off64_t)>("ftruncate64")(descriptor, size); });
}

int fsync(int descriptor)
{
    return changed(isWatched(descriptor), DiskCall::Sync,
                   [&] { return next<int(int)>("fsync")(descriptor); });
}

int fdatasync(int descriptor)
{
    return changed(isWatched(descriptor), DiskCall::Sync,
                   [&] { return next<int(int)>("fdatasync")(descriptor); });
}

int rename(const char *from, const char *to) noexcept
{
    return changed(isWatched(AT_FDCWD, to), DiskCall::Alter,
                   [&] { return next<int(const char *, const char *)>("rename")(from, to); });
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
              unsigned flags) noexcept
{
    using Call = int(int, const char *, int, const char *, unsigned);
    return changed(isWatched(toFolder, to), DiskCall::Alter,
                   [&] { return next<Call>("renameat2")(fromFolder, from, toFolder, to, flags); });
}

int link(const char *from, const char *to) noexcept
{
    return changed(isWatched(AT_FDCWD, to), DiskCall::Alter,
                   [&] { return next<int(const char *, const char *)>("link")(from, to); });
}

int mkdir(const char *path, mode_t mode) noexcept
{
    return changed(isWatched(AT_FDCWD, path), DiskCall::Alter,
                   [&] { return next<int(const char *, mode_t)>("mkdir")(path, mode); });
}

int unlink(const char *path) noexcept
{
    return changed(isWatched(AT_FDCWD, path), DiskCall::Remove,
                   [&] { return next<int(const char *)>("unlink")(path); });
}

int sigaction(int signal, const struct sigaction *action, struct sigaction *before) noexcept
{
    using Call = int(int, const struct sigaction *, struct sigaction *);
    const int result = next<Call>("sigaction")(signal, action, before);
    const bool handled = action && action->sa_handler != SIG_DFL && action->sa_handler != SIG_IGN;
    if (result == 0 && signal == SIGTERM && handled && plan && plan->ends)
        askToEnd();
    return result;
}

// QMessageBox::setInformativeText(), with which the organizer makes each of its messages.
#define MESSAGE_CALL "_ZN11QMessageBox18setInformativeTextERK7QString"
void setInformativeText(void *box, const void *text) asm(MESSAGE_CALL);

void setInformativeText(void *box, const void *text)
{
    next<void(void *, const void *)>(MESSAGE_CALL)(box, text);
    if (!plan || !plan->ends || !plan->struck)
        return;
    // Whoever is asked has made room meanwhile.
    plan->error = FaultPlan::Never;
    askToEnd();
}

} // extern "C"
