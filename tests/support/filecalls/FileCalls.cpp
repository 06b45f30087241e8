#include "FileCalls.h"

#include <atomic>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace vxtest {

namespace {

const std::function<void()>* beforeReading = nullptr;

/// The settings from the environment variables.
struct Plan
{
    Plan()
    {
        if (const char* const number = std::getenv("VX_DIE_IN_FILE_CALL"))
            last = std::atoi(number);
        if (const char* const path = std::getenv("VX_FILE_CALLS"))
            log =
                static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600));
    }

    int last = 0;
    int log = -1;
};

std::string fileName(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

/// Counts a call that changes files. `path` is the path of the file, or null if the call has none.
void step(const char* name, const char* path = nullptr)
{
    static const Plan plan;
    static std::atomic<int> count{0};
    const std::string line = name + (path != nullptr ? ' ' + fileName(path) : "") + '\n';
    if (plan.log >= 0)
        syscall(SYS_write, plan.log, line.data(), line.size());
    if (++count == plan.last)
        kill(getpid(), SIGKILL);
}

bool isFile(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode));
}

/// Runs the action of BeforeReading, which may read files itself.
void announceReading()
{
    if (const auto* const action = std::exchange(beforeReading, nullptr)) {
        (*action)();
        beforeReading = action;
    }
}

/// Returns the function with this name that the function in this file replaces.
template <class Function>
Function* following(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// Opens a file with the function `name`. `folder` is the folder if the function has this parameter. `rest` contains
/// the mode if the flags need it.
template <class... Folder>
int openFile(const char* name, va_list rest, const char* path, int flags, Folder... folder)
{
    const bool makesFile = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    if (makesFile || (flags & O_TRUNC) != 0)
        step(name, path);
    const mode_t mode = makesFile ? va_arg(rest, mode_t) : 0;
    return following<int(Folder..., const char*, int, ...)>(name)(folder..., path, flags, mode);
}

} // namespace

BeforeReading::BeforeReading(std::function<void()> action) : m_action(std::move(action))
{
    beforeReading = &m_action;
}

BeforeReading::~BeforeReading()
{
    beforeReading = nullptr;
}

} // namespace vxtest

#define VX_IN_FRONT extern "C" __attribute__((visibility("default")))

// Functions with a path. Every call counts.
#define VX_COUNT(name, parameters, arguments)                                                                          \
    VX_IN_FRONT int name parameters noexcept                                                                           \
    {                                                                                                                  \
        vxtest::step(#name, path);                                                                                     \
        return vxtest::following<int parameters>(#name) arguments;                                                     \
    }

// Functions with an open file. Calls for pipes and sockets do not count.
#define VX_COUNT_FILE(name, parameters, arguments, specifier)                                                          \
    VX_IN_FRONT int name parameters specifier                                                                          \
    {                                                                                                                  \
        if (vxtest::isFile(file))                                                                                      \
            vxtest::step(#name);                                                                                       \
        return vxtest::following<int parameters>(#name) arguments;                                                     \
    }

VX_COUNT(rename, (const char* from, const char* path), (from, path))
VX_COUNT(renameat, (int folder, const char* from, int other, const char* path), (folder, from, other, path))
VX_COUNT(renameat2, (int folder, const char* from, int other, const char* path, unsigned flags),
         (folder, from, other, path, flags))
VX_COUNT(link, (const char* from, const char* path), (from, path))
VX_COUNT(linkat, (int folder, const char* from, int other, const char* path, int flags),
         (folder, from, other, path, flags))
VX_COUNT(symlink, (const char* target, const char* path), (target, path))
VX_COUNT(unlink, (const char* path), (path))
VX_COUNT(unlinkat, (int folder, const char* path, int flags), (folder, path, flags))
VX_COUNT(mkdir, (const char* path, mode_t mode), (path, mode))
VX_COUNT(rmdir, (const char* path), (path))
VX_COUNT(truncate, (const char* path, off_t size), (path, size))
VX_COUNT(truncate64, (const char* path, off64_t size), (path, size))
VX_COUNT(chmod, (const char* path, mode_t mode), (path, mode))
VX_COUNT(chown, (const char* path, uid_t user, gid_t group), (path, user, group))
VX_COUNT_FILE(fchmod, (int file, mode_t mode), (file, mode), noexcept)
VX_COUNT_FILE(fchown, (int file, uid_t user, gid_t group), (file, user, group), noexcept)
VX_COUNT_FILE(ftruncate, (int file, off_t size), (file, size), noexcept)
VX_COUNT_FILE(ftruncate64, (int file, off64_t size), (file, size), noexcept)
VX_COUNT_FILE(fsync, (int file), (file), )
VX_COUNT_FILE(fdatasync, (int file), (file), )

VX_IN_FRONT int open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const int file = vxtest::openFile("open", rest, path, flags);
    va_end(rest);
    return file;
}

VX_IN_FRONT int open64(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const int file = vxtest::openFile("open64", rest, path, flags);
    va_end(rest);
    return file;
}

VX_IN_FRONT int openat(int folder, const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const int file = vxtest::openFile("openat", rest, path, flags, folder);
    va_end(rest);
    return file;
}

VX_IN_FRONT ssize_t write(int file, const void* data, size_t size)
{
    auto* const next = vxtest::following<ssize_t(int, const void*, size_t)>("write");
    if (!vxtest::isFile(file))
        return next(file, data, size);
    vxtest::step("write");
    const ssize_t half = next(file, data, size / 2);
    if (half != static_cast<ssize_t>(size / 2))
        return half;
    vxtest::step("write the rest");
    const ssize_t rest = next(file, static_cast<const char*>(data) + half, size - static_cast<size_t>(half));
    return rest >= 0 ? half + rest : half > 0 ? half : rest;
}

VX_IN_FRONT ssize_t read(int file, void* data, size_t size)
{
    if (vxtest::isFile(file))
        vxtest::announceReading();
    return vxtest::following<ssize_t(int, void*, size_t)>("read")(file, data, size);
}
