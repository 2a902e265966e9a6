// SPDX-License-Identifier: Apache-2.0
// Counts the heap of the whole program.
#include "heapmeter.h"

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<long long> allocated{0};
std::atomic<long long> highest{0};
std::atomic<long long> atRestart{0};

} // namespace

#ifdef __GLIBC__

#include <malloc.h>

extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): names of the C library
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* memory);
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

} // extern "C"

namespace {

void* counted(void* memory)
{
    const long long now = allocated += static_cast<long long>(malloc_usable_size(memory));
    long long seen = highest;
    while (seen < now && !highest.compare_exchange_weak(seen, now)) {
    }
    return memory;
}

void uncount(void* memory)
{
    allocated -= static_cast<long long>(malloc_usable_size(memory));
}

} // namespace

extern "C" {

void* malloc(std::size_t size) noexcept
{
    return counted(__libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size) noexcept
{
    return counted(__libc_calloc(count, size));
}

void* realloc(void* memory, std::size_t size) noexcept
{
    uncount(memory);
    return counted(__libc_realloc(memory, size));
}

void* memalign(std::size_t alignment, std::size_t size) noexcept
{
    return counted(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    return counted(__libc_memalign(alignment, size));
}

int posix_memalign(void** memory, std::size_t alignment, std::size_t size) noexcept
{
    *memory = counted(__libc_memalign(alignment, size));
    return *memory == nullptr ? 12 : 0;
}

void free(void* memory) noexcept
{
    uncount(memory);
    __libc_free(memory);
}

} // extern "C"

bool HeapMeter::isAvailable()
{
    return true;
}

#else

bool HeapMeter::isAvailable()
{
    return false;
}

#endif

void HeapMeter::restart()
{
    atRestart = allocated.load();
    highest = allocated.load();
}

std::size_t HeapMeter::peakBytes()
{
    return static_cast<std::size_t>(highest - atRestart);
}
