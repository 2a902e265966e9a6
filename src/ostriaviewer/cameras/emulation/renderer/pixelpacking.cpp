// SPDX-License-Identifier: Apache-2.0
// From words to the bytes of a pixel format.
#include "pixelpacking.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace Cameras::Emulation {
namespace {

using Ostria::PixelType;

std::uint8_t toByte(int word)
{
    const int rounded = (word + 128) >> 8;
    return static_cast<std::uint8_t>(rounded < 255 ? rounded : 255);
}

void packBytes(const Word* values, int count, std::uint8_t* out)
{
    for (int i = 0; i < count; ++i)
        out[i] = toByte(values[i]);
}

/// Two bytes a sample, the lower one first.
void packCounts(const Word* values, int count, std::uint8_t* out)
{
    for (int i = 0; i < count; ++i) {
        const int rounded = (values[i] + wordsPerCount / 2) >> 4;
        const int counts = rounded < fullScale ? rounded : fullScale;
        out[2 * i] = static_cast<std::uint8_t>(counts & 0xFF);
        out[2 * i + 1] = static_cast<std::uint8_t>(counts >> 8);
    }
}

/// The camera's words as they are, in the machine's byte order.
void packWords(const Word* values, int count, std::uint8_t* out)
{
    std::memcpy(out, values, sizeof(Word) * static_cast<std::size_t>(count));
}

/// Moves the luma of the pixels to the beginning of the row.
void reduceToLuma(Word* rgb, int count)
{
    for (int i = 0; i < count; ++i) {
        const std::uint32_t sum =
            19595U * rgb[3 * i] + 38470U * rgb[3 * i + 1] + 7471U * rgb[3 * i + 2] + 32768U;
        rgb[i] = static_cast<Word>(sum >> 16U);
    }
}

// Fixed point with 22 binary digits after the point: weights of words for an output of 8 bits.
constexpr int yuvShift = 22;

constexpr int yuvWeight(double weight)
{
    const double scaled = weight * (1 << yuvShift) / wordFullScale;
    return static_cast<int>(scaled < 0.0 ? scaled - 0.5 : scaled + 0.5);
}

int lumaByte(const Word* rgb)
{
    constexpr int red = yuvWeight(219.0 * 0.299);
    constexpr int green = yuvWeight(219.0 * 0.587);
    constexpr int blue = yuvWeight(219.0 * 0.114);
    constexpr int half = 1 << (yuvShift - 1);
    return 16 + ((red * rgb[0] + green * rgb[1] + blue * rgb[2] + half) >> yuvShift);
}

void packYuvPair(const Word* rgb, std::uint8_t* out)
{
    // B - Y and R - Y in units in which they reach from -112 to 112. Weights add up to 0.
    constexpr int cbRed = yuvWeight(-112.0 * 0.299 / 0.886);
    constexpr int cbBlue = yuvWeight(112.0);
    constexpr int crRed = yuvWeight(112.0);
    constexpr int crBlue = yuvWeight(-112.0 * 0.114 / 0.701);
    const int red = rgb[0] + rgb[3];
    const int green = rgb[1] + rgb[4];
    const int blue = rgb[2] + rgb[5];
    constexpr int half = 1 << yuvShift;
    const int cb =
        (cbRed * red - (cbRed + cbBlue) * green + cbBlue * blue + half) >> (yuvShift + 1);
    const int cr =
        (crRed * red - (crRed + crBlue) * green + crBlue * blue + half) >> (yuvShift + 1);
    out[0] = static_cast<std::uint8_t>(lumaByte(rgb));
    out[1] = static_cast<std::uint8_t>(128 + cb);
    out[2] = static_cast<std::uint8_t>(lumaByte(rgb + 3));
    out[3] = static_cast<std::uint8_t>(128 + cr);
}

template <int bytesPerPixel>
void packBgr(const Word* rgb, int count, std::uint8_t* out)
{
    for (int i = 0; i < count; ++i, rgb += 3, out += bytesPerPixel) {
        out[0] = toByte(rgb[2]);
        out[1] = toByte(rgb[1]);
        out[2] = toByte(rgb[0]);
        if (bytesPerPixel == 4)
            out[bytesPerPixel - 1] = 255;
    }
}

} // namespace

void packSamples(PixelType type, const Word* values, int count, std::uint8_t* out)
{
    if (type == PixelType::Mono8 || type == PixelType::BayerRG8)
        packBytes(values, count, out);
    else
        packCounts(values, count, out);
}

void packColors(PixelType type, Word* rgb, int count, std::uint8_t* out)
{
    if (type == PixelType::RGB8) {
        packBytes(rgb, 3 * count, out);
    } else if (type == PixelType::RGB16) {
        packWords(rgb, 3 * count, out);
    } else if (type == PixelType::BGR8) {
        packBgr<3>(rgb, count, out);
    } else if (type == PixelType::BGRa8) {
        packBgr<4>(rgb, count, out);
    } else if (type == PixelType::YUV422_8) {
        for (int i = 0; i < count; i += 2)
            packYuvPair(rgb + 3 * static_cast<std::ptrdiff_t>(i),
                        out + 2 * static_cast<std::ptrdiff_t>(i));
    } else {
        reduceToLuma(rgb, count);
        packSamples(type, rgb, count, out);
    }
}

} // namespace Cameras::Emulation
