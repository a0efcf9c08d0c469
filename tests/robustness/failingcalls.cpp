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

#define ORVAN_CALL(result, name, parameters, arguments, fails)                                               \
    result name parameters                                                                                   \
    {                                                                                                        \
        static const auto real = Real(&name, #name);                                                         \
        return fails ? -1 : real arguments;                                                                  \
    }
ORVAN_CALL(ssize_t, write, (int file, const void* data, size_t size), (file, data, size),
           IsFile(file) && Fails())
ORVAN_CALL(int, fsync, (int file), (file), Fails(EIO))
ORVAN_CALL(int, fdatasync, (int file), (file), Fails(EIO))
ORVAN_CALL(int, renameat2,
           (int fromAt, const char* from, int toAt, const char* to, unsigned int flags) noexcept,
           (fromAt, from, toAt, to, flags), Fails(EIO))
ORVAN_CALL(int, rename, (const char* from, const char* to), (from, to), Fails(EIO))
ORVAN_CALL(int, linkat, (int fromAt, const char* from, int toAt, const char* to, int flags),
           (fromAt, from, toAt, to, flags), Fails())
ORVAN_CALL(int, mkdir, (const char* path, mode_t mode) noexcept, (path, mode), Fails())
#undef ORVAN_CALL
}
