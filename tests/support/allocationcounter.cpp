// SPDX-License-Identifier: Apache-2.0
// Replaces the global operators by counting ones.
#include "allocationcounter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> taken{0};
std::atomic<long> released{0};

} // namespace

long allocations()
{
    return taken;
}

long liveBlocks()
{
    return taken - released;
}

void* operator new(std::size_t size)
{
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (!block) {
        throw std::bad_alloc();
    }
    ++taken;
    return block;
}

void operator delete(void* block) noexcept
{
    if (block) {
        ++released;
        std::free(block);
    }
}

void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}

// A sanitizer's own forms for arrays would not call the ones above.
void* operator new[](std::size_t size)
{
    return operator new(size);
}

void operator delete[](void* block) noexcept
{
    operator delete(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    operator delete(block);
}
