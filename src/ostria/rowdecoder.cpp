// SPDX-License-Identifier: Apache-2.0
// Decoding of one row of pixels into integers.
#include "rowdecoder.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace Ostria {
namespace {

#ifdef __BYTE_ORDER__
static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__,
              "Two-byte channels are copied as they lie in memory");
#endif

std::uint16_t shifted(unsigned value, int leftShift)
{
    return static_cast<std::uint16_t>(value << leftShift);
}

/// Two-byte samples of any alignment.
void decodeWords(const std::uint8_t* in, int count, unsigned mask, int leftShift,
                 std::uint16_t* out)
{
    for (int i = 0; i < count; ++i) {
        std::uint16_t value = 0;
        std::memcpy(&value, in + 2 * static_cast<std::ptrdiff_t>(i), sizeof value);
        out[i] = shifted(value & mask, leftShift);
    }
}

unsigned firstOfPair(const std::uint8_t* pair, SamplePacking packing)
{
    if (packing == SamplePacking::Lsb12)
        return pair[0] | (pair[1] & 0x0Fu) << 8;
    return static_cast<unsigned>(pair[0]) << 4 | (pair[1] & 0x0Fu);
}

unsigned secondOfPair(const std::uint8_t* pair)
{
    return static_cast<unsigned>(pair[2]) << 4 | pair[1] >> 4;
}

/// Pairs of 12-bit samples in three bytes.
template <SamplePacking packing>
void decodePairs(const std::uint8_t* row, int x, int count, int leftShift, std::uint16_t* out)
{
    const std::uint8_t* pair = row + 3 * static_cast<std::ptrdiff_t>(x / 2);
    const std::uint16_t* end = out + count;
    if (count > 0 && x % 2 != 0) {
        *out++ = shifted(secondOfPair(pair), leftShift);
        pair += 3;
    }
    for (; end - out >= 2; out += 2, pair += 3) {
        out[0] = shifted(firstOfPair(pair, packing), leftShift);
        out[1] = shifted(secondOfPair(pair), leftShift);
    }
    if (out != end)
        *out = shifted(firstOfPair(pair, packing), leftShift);
}

/// Eight-bit pixels of which red, green and blue are at fixed bytes.
template <int bytesPerPixel, int red, int green, int blue>
void decodeBytes(const std::uint8_t* in, int count, int leftShift, std::uint16_t* rgb)
{
    for (int i = 0; i < count; ++i, in += bytesPerPixel, rgb += 3) {
        rgb[0] = shifted(in[red], leftShift);
        rgb[1] = shifted(in[green], leftShift);
        rgb[2] = shifted(in[blue], leftShift);
    }
}

/// \param count  even; the row begins at a pair
void decodeYuvPairs(PixelType type, const std::uint8_t* in, int count, std::uint8_t* rgb)
{
    const cv::Mat source(1, count, CV_8UC2, const_cast<std::uint8_t*>(in));
    cv::Mat target(1, count, CV_8UC3, rgb);
    cv::cvtColor(source, target,
                 type == PixelType::YUV422_8 ? cv::COLOR_YUV2RGB_YUYV : cv::COLOR_YUV2RGB_UYVY);
}

void decodeYuv(PixelType type, const std::uint8_t* row, int x, int count, int leftShift,
               std::uint16_t* rgb)
{
    constexpr int chunk = 2048;
    std::uint8_t bytes[3 * chunk];
    const int end = x + count;
    for (int begin = x - x % 2; begin < end; begin += chunk) {
        const int pairsEnd = std::min(begin + chunk, end + end % 2);
        decodeYuvPairs(type, row + 2 * static_cast<std::ptrdiff_t>(begin), pairsEnd - begin, bytes);
        const int first = std::max(begin, x);
        const int pixels = std::min(pairsEnd, end) - first;
        decodeBytes<3, 0, 1, 2>(bytes + 3 * static_cast<std::ptrdiff_t>(first - begin), pixels,
                                leftShift, rgb);
        rgb += 3 * static_cast<std::ptrdiff_t>(pixels);
    }
}

void decodePlainColors(PixelType type, const std::uint8_t* row, int x, int count, int leftShift,
                       std::uint16_t* rgb)
{
    const std::ptrdiff_t first = x;
    if (type == PixelType::RGB16)
        std::memcpy(rgb, row + 6 * first, 6 * static_cast<std::size_t>(count));
    else if (type == PixelType::RGB8)
        decodeBytes<3, 0, 1, 2>(row + 3 * first, count, leftShift, rgb);
    else if (type == PixelType::BGR8)
        decodeBytes<3, 2, 1, 0>(row + 3 * first, count, leftShift, rgb);
    else
        decodeBytes<4, 2, 1, 0>(row + 4 * first, count, leftShift, rgb);
}

/// Spreads samples that lie in the last third of the room over the whole of it.
void spreadMono(int count, std::uint16_t* rgb)
{
    const std::uint16_t* in = rgb + 2 * static_cast<std::ptrdiff_t>(count);
    for (int i = 0; i < count; ++i, rgb += 3)
        rgb[0] = rgb[1] = rgb[2] = in[i];
}

/// The same, each sample into the channel of its filter.
void spreadBayer(const PixelTypeInfo& info, int x, int y, int count, std::uint16_t* rgb)
{
    const std::uint16_t* in = rgb + 2 * static_cast<std::ptrdiff_t>(count);
    const bool redRow = y % 2 == info.redY;
    const int greenX = redRow ? 1 - info.redX : info.redX;
    for (int i = 0; i < count; ++i, rgb += 3) {
        const std::uint16_t value = in[i];
        const bool green = (x + i) % 2 == greenX;
        rgb[0] = !green && redRow ? value : std::uint16_t(0);
        rgb[1] = green ? value : std::uint16_t(0);
        rgb[2] = !green && !redRow ? value : std::uint16_t(0);
    }
}

} // namespace

void decodeSamples(const PixelTypeInfo& info, const std::uint8_t* row, int x, int count,
                   int leftShift, std::uint16_t* out)
{
    if (info.packing == SamplePacking::Lsb12)
        decodePairs<SamplePacking::Lsb12>(row, x, count, leftShift, out);
    else if (info.packing == SamplePacking::GigE12)
        decodePairs<SamplePacking::GigE12>(row, x, count, leftShift, out);
    else if (info.bitDepth > 8)
        decodeWords(row + 2 * static_cast<std::ptrdiff_t>(x), count, (1u << info.bitDepth) - 1,
                    leftShift, out);
    else
        std::transform(row + x, row + x + count, out,
                       [leftShift](std::uint8_t value) { return shifted(value, leftShift); });
}

void decodeColors(PixelType type, const PixelTypeInfo& info, const std::uint8_t* row, int x, int y,
                  int count, int leftShift, std::uint16_t* rgb)
{
    switch (info.layout) {
    case PixelLayout::Mono:
        decodeSamples(info, row, x, count, leftShift, rgb + 2 * static_cast<std::ptrdiff_t>(count));
        spreadMono(count, rgb);
        break;
    case PixelLayout::Bayer:
        decodeSamples(info, row, x, count, leftShift, rgb + 2 * static_cast<std::ptrdiff_t>(count));
        spreadBayer(info, x, y, count, rgb);
        break;
    case PixelLayout::Color:
        decodePlainColors(type, row, x, count, leftShift, rgb);
        break;
    case PixelLayout::Yuv422:
        decodeYuv(type, row, x, count, leftShift, rgb);
        break;
    }
}

} // namespace Ostria
