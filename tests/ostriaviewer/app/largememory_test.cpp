// SPDX-License-Identifier: Apache-2.0
// The memory of an image is the system's again as soon as the image has gone.
#include "largememory.h"

#include <cstdlib>

#include <gtest/gtest.h>

// A sanitizer brings a heap of its own.
#if defined(__GLIBC__) && !defined(OSTRIA_ADDRESS_SANITIZER) && !defined(OSTRIA_THREAD_SANITIZER)

#include <malloc.h>

namespace Viewer {
namespace {

/// Bytes in blocks that the system gave for themselves.
std::size_t bytesOfTheirOwn()
{
    return mallinfo2().hblkhd;
}

// Keeps the compiler from leaving the block out.
void use(void* memory)
{
    ASSERT_TRUE(memory);
    *static_cast<volatile char*>(memory) = 1;
}

TEST(LargeMemory, IsGivenBackHoweverLargeTheBlocksBeforeWere)
{
    constexpr std::size_t before = 30000000;
    constexpr std::size_t image = 1920 * 1200 * 4;
    giveLargeMemoryBack();
    void* larger = std::malloc(before);
    use(larger);
    std::free(larger);
    const std::size_t without = bytesOfTheirOwn();
    void* block = std::malloc(image);
    use(block);
    EXPECT_GE(bytesOfTheirOwn(), without + image);
    std::free(block);
    EXPECT_EQ(bytesOfTheirOwn(), without);
}

} // namespace
} // namespace Viewer

#endif
