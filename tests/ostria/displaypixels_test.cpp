// SPDX-License-Identifier: Apache-2.0
// Tests of the pack for display against its plain loop.
#include "displaypixels.h"

#include "slowdecoder.h"

#include <gtest/gtest.h>

namespace Ostria {
namespace {

/// One pixel after the other, in the way that the format is defined.
std::vector<std::uint8_t> packOneByOne(const std::uint8_t* rgb16, int count)
{
    std::vector<std::uint8_t> bgra8;
    for (int i = 0; i < count; ++i) {
        const Rgb pixel = slowPixel(PixelType::RGB16, rgb16, i, 0);
        for (const int value : {pixel[2] / 256, pixel[1] / 256, pixel[0] / 256, 255})
            bgra8.push_back(static_cast<std::uint8_t>(value));
    }
    return bgra8;
}

TEST(PackForDisplay, IsThePlainLoopAtEveryLengthAndAlignment)
{
    const std::vector<std::uint8_t> source = noise(6 * 100 + 16);
    for (int count = 0; count <= 100; ++count) {
        for (std::size_t offset = 0; offset < 16; offset += 5) {
            std::vector<std::uint8_t> target(4 * static_cast<std::size_t>(count) + offset + 1, 77);
            packForDisplay(source.data() + offset, count, target.data() + offset);
            std::vector<std::uint8_t> expected(offset, 77);
            const std::vector<std::uint8_t> pixels = packOneByOne(source.data() + offset, count);
            expected.insert(expected.end(), pixels.begin(), pixels.end());
            expected.push_back(77);
            ASSERT_EQ(target, expected) << count << " pixels from byte " << offset;
        }
    }
}

TEST(PackForDisplay, TakesTheHighByteOfEveryValue)
{
    std::vector<std::uint8_t> source;
    for (int value = 0; value < 65536; ++value) {
        for (const int channel : {value, 65535 - value, value ^ 0x5A5A}) {
            source.push_back(static_cast<std::uint8_t>(channel % 256));
            source.push_back(static_cast<std::uint8_t>(channel / 256));
        }
    }
    std::vector<std::uint8_t> target(std::size_t(4) * 65536);
    packForDisplay(source.data(), 65536, target.data());
    EXPECT_EQ(target, packOneByOne(source.data(), 65536));
}

} // namespace
} // namespace Ostria
