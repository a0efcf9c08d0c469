// Takes the place of the C library's allocation functions, which Qt and operator new go through, and counts.
#include "allocations.h"

#include <malloc.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>

extern "C" {
void* __libc_malloc(size_t);
void* __libc_calloc(size_t, size_t);
void* __libc_realloc(void*, size_t);
void* __libc_memalign(size_t, size_t);
void __libc_free(void*);
}

namespace {

std::atomic<size_t> g_live{0};
std::atomic<size_t> g_peak{0};

void* Counted(void* block)
{
    const size_t live = g_live += block ? malloc_usable_size(block) : 0;
    if (live > g_peak)
        g_peak = live;
    return block;
}

void Uncount(void* block)
{
    g_live -= block ? malloc_usable_size(block) : 0;
}

} // namespace

extern "C" {

void* malloc(size_t size)
{
    return Counted(__libc_malloc(size));
}

void* calloc(size_t count, size_t size)
{
    return Counted(__libc_calloc(count, size));
}

void* realloc(void* block, size_t size)
{
    Uncount(block);
    return Counted(__libc_realloc(block, size));
}

void* memalign(size_t alignment, size_t size)
{
    return Counted(__libc_memalign(alignment, size));
}

void* aligned_alloc(size_t alignment, size_t size)
{
    return Counted(__libc_memalign(alignment, size));
}

int posix_memalign(void** out, size_t alignment, size_t size)
{
    *out = Counted(__libc_memalign(alignment, size));
    return *out ? 0 : ENOMEM;
}

void free(void* block)
{
    Uncount(block);
    __libc_free(block);
}
}

namespace allocations {

size_t Live()
{
    return g_live;
}

size_t Peak()
{
    return g_peak;
}

void ResetPeak()
{
    g_peak = g_live.load();
}

} // namespace allocations
