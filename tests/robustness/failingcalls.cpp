#include "robustness/failingcalls.h"

#include <cerrno>
#include <cstdarg>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

int g_first = 0;
int g_last = -1;
int g_count = 0;

bool Fails(int error = ENOSPC)
{
    if (++g_count < g_first || g_count > g_last)
        return false;
    errno = error;
    return true;
}

template <class Function> Function Real(Function, const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool IsFile(int file)
{
    struct stat status = {};
    return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

mode_t ModeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) ? va_arg(arguments, mode_t) : 0;
}

} // namespace

void FailCalls(int first, int last)
{
    g_first = first;
    g_last = last;
    g_count = 0;
}

int CountCalls()
{
    return g_count;
}

// The C library's functions, each with the failure put before it.
extern "C" {

#define ORVAN_OPEN(name)                                                                                     \
    int name(const char* path, int flags, ...)                                                               \
    {                                                                                                        \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = ModeOf(flags, arguments);                                                        \
        va_end(arguments);                                                                                   \
        static const auto real = Real(&name, #name);                                                         \
        return (flags & O_ACCMODE) != O_RDONLY && Fails() ? -1 : real(path, flags, mode);                    \
    }
ORVAN_OPEN(open)
ORVAN_OPEN(open64)
#undef ORVAN_OPEN

ssize_t write(int file, const void* data, size_t size)
{
    static const auto real = Real(&write, "write");
    return IsFile(file) && Fails() ? -1 : real(file, data, size);
}

int fsync(int file)
{
    static const auto real = Real(&fsync, "fsync");
    return Fails(EIO) ? -1 : real(file);
}

int fdatasync(int file)
{
    static const auto real = Real(&fdatasync, "fdatasync");
    return Fails(EIO) ? -1 : real(file);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags) noexcept
{
    static const auto real = Real(&renameat2, "renameat2");
    return Fails(EIO) ? -1 : real(fromFolder, from, toFolder, to, flags);
}

int rename(const char* from, const char* to)
{
    static const auto real = Real(&rename, "rename");
    return Fails(EIO) ? -1 : real(from, to);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags)
{
    static const auto real = Real(&linkat, "linkat");
    return Fails() ? -1 : real(fromFolder, from, toFolder, to, flags);
}

int mkdir(const char* path, mode_t mode) noexcept
{
    static const auto real = Real(&mkdir, "mkdir");
    return Fails() ? -1 : real(path, mode);
}
}
