// SPDX-License-Identifier: Apache-2.0
// Replaces the global operators by ones that can refuse.
#include "allocationfailure.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> refusedSize{0};
std::atomic<int> refusals{0};

} // namespace

AllocationFailure::AllocationFailure(std::size_t size)
{
    refusals = 0;
    refusedSize = size;
}

AllocationFailure::~AllocationFailure()
{
    refusedSize = 0;
}

int AllocationFailure::count() const
{
    return refusals;
}

void* operator new(std::size_t size)
{
    if (size != 0 && size == refusedSize) {
        ++refusals;
        throw std::bad_alloc();
    }
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (!block)
        throw std::bad_alloc();
    return block;
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

// A sanitizer's own forms for arrays would not call the ones above.
void* operator new[](std::size_t size)
{
    return operator new(size);
}

void operator delete[](void* block) noexcept
{
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    std::free(block);
}
