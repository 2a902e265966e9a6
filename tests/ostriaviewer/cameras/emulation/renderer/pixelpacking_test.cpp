// SPDX-License-Identifier: Apache-2.0
// The bytes of every pixel format.
#include "pixelpacking.h"

#include <gtest/gtest.h>

#include <vector>

namespace Cameras::Emulation {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Ostria::PixelType;

// Red 4095, green 1000, blue 16 counts; then blue full, the others dark.
const std::vector<Word> twoPixels = {65520, 16000, 256, 0, 0, 65520};

Bytes packed(PixelType type, std::vector<Word> rgb, std::size_t bytesPerPixel)
{
    const std::size_t pixels = rgb.size() / 3;
    Bytes out(pixels * bytesPerPixel);
    packColors(type, rgb.data(), static_cast<int>(pixels), out.data());
    return out;
}

TEST(PixelPacking, RoundsSamplesTo8Bits)
{
    // In sixteenths of a count, 256 of which are one of 8 bits.
    const std::vector<Word> words = {0, 127, 128, 256, 383, 384, 65407, 65408, 65520};
    const Bytes expected = {0, 0, 1, 1, 1, 2, 255, 255, 255};
    for (const PixelType type : {PixelType::Mono8, PixelType::BayerRG8}) {
        Bytes out(words.size());
        packSamples(type, words.data(), static_cast<int>(words.size()), out.data());
        EXPECT_EQ(out, expected);
    }
}

TEST(PixelPacking, RoundsSamplesTo12BitsLowByteFirst)
{
    const std::vector<Word> words = {0, 7, 8, 16 * 0x123, 16 * 0x123 + 8, 65520};
    const Bytes expected = {0, 0, 0, 0, 1, 0, 0x23, 0x01, 0x24, 0x01, 0xFF, 0x0F};
    for (const PixelType type : {PixelType::Mono12, PixelType::BayerRG12}) {
        Bytes out(2 * words.size());
        packSamples(type, words.data(), static_cast<int>(words.size()), out.data());
        EXPECT_EQ(out, expected);
    }
}

TEST(PixelPacking, OrdersTheChannels)
{
    // 16000 / 256 is 62.5, which rounds up.
    EXPECT_EQ(packed(PixelType::RGB8, twoPixels, 3), (Bytes{255, 63, 1, 0, 0, 255}));
    EXPECT_EQ(packed(PixelType::BGR8, twoPixels, 3), (Bytes{1, 63, 255, 255, 0, 0}));
    EXPECT_EQ(packed(PixelType::BGRa8, twoPixels, 4), (Bytes{1, 63, 255, 255, 255, 0, 0, 255}));
}

TEST(PixelPacking, KeepsEveryDigitOf16BitsLowByteFirst)
{
    // 65520 is 0xFFF0, 16000 is 0x3E80, 256 is 0x0100.
    EXPECT_EQ(packed(PixelType::RGB16, twoPixels, 6),
              (Bytes{0xF0, 0xFF, 0x80, 0x3E, 0x00, 0x01, 0, 0, 0, 0, 0xF0, 0xFF}));
}

// ITU-R BT.601: 0.299 R + 0.587 G + 0.114 B.
TEST(PixelPacking, ReducesColorsToTheirLuma)
{
    EXPECT_EQ(packed(PixelType::Mono8, twoPixels, 1),
              (Bytes{113, 29})); // (0.299 * 65520 + 0.587 * 16000 + 0.114 * 256) / 256 = 113.3
    const Bytes mono12 = packed(PixelType::Mono12, twoPixels, 2);
    EXPECT_EQ(mono12[0] + 256 * mono12[1], 1813); // 1813.2
    EXPECT_EQ(mono12[2] + 256 * mono12[3], 467);  // 466.8
    EXPECT_EQ(packed(PixelType::Mono8, {65520, 65520, 65520}, 1), Bytes{255});
    EXPECT_EQ(packed(PixelType::Mono12, {16000, 16000, 16000}, 2), (Bytes{0xE8, 0x03}));
}

TEST(PixelPacking, WritesBt601InItsLimitedRange)
{
    const std::vector<Word> whiteBlack = {65520, 65520, 65520, 0, 0, 0};
    EXPECT_EQ(packed(PixelType::YUV422_8, whiteBlack, 2), (Bytes{235, 128, 16, 128}));
    // Colour bars of BT.601 at full level: red 81, 90, 240; blue 41, 240, 110; green 145, 54, 34.
    EXPECT_EQ(packed(PixelType::YUV422_8, {65520, 0, 0, 65520, 0, 0}, 2), (Bytes{81, 90, 81, 240}));
    EXPECT_EQ(packed(PixelType::YUV422_8, {0, 0, 65520, 0, 0, 65520}, 2),
              (Bytes{41, 240, 41, 110}));
    EXPECT_EQ(packed(PixelType::YUV422_8, {0, 65520, 0, 0, 65520, 0}, 2),
              (Bytes{145, 54, 145, 34}));
}

TEST(PixelPacking, GivesAPairTheMeanOfItsColorDifferences)
{
    // Red and blue: (90 + 240) / 2 and (240 + 110) / 2.
    EXPECT_EQ(packed(PixelType::YUV422_8, {65520, 0, 0, 0, 0, 65520}, 2),
              (Bytes{81, 165, 41, 175}));
}

} // namespace
} // namespace Cameras::Emulation
