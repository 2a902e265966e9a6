// SPDX-License-Identifier: Apache-2.0
// Row lengths of images in bytes.
#include "stride.h"

#include <climits>
#include <cstdio>
#include <stdexcept>
#include <string>

namespace Ostria {
namespace {

constexpr std::size_t largestInt = INT_MAX;

const PixelTypeInfo& knownInfo(PixelType type)
{
    if (const PixelTypeInfo* info = pixelTypeInfo(type))
        return *info;
    char text[64];
    static_cast<void>(std::snprintf(text, sizeof text, "The pixel type 0x%08X is not supported.",
                                    static_cast<unsigned>(type)));
    throw std::invalid_argument(text);
}

void checkWidth(PixelType type, int width, int multiple)
{
    if (width < 1)
        throw std::invalid_argument("The width is " + std::to_string(width) +
                                    ", it must be at least 1.");
    if (width % multiple != 0)
        throw std::invalid_argument("The width is " + std::to_string(width) + ", " +
                                    pixelTypeName(type) + " needs a multiple of " +
                                    std::to_string(multiple) + ".");
}

} // namespace

std::size_t ComputeStride(PixelType type, int width, std::size_t paddingX)
{
    const PixelTypeInfo& info = knownInfo(type);
    checkWidth(type, width, info.widthMultiple);
    const std::int64_t bits = static_cast<std::int64_t>(width) * info.bitsPerPixel;
    const auto bytes = static_cast<std::uint64_t>(bits / 8);
    if (bytes > largestInt || paddingX > largestInt - bytes)
        throw std::length_error("A row of " + std::to_string(bytes) + " bytes and a padding of " +
                                std::to_string(paddingX) + " bytes are too long.");
    return static_cast<std::size_t>(bytes) + paddingX;
}

std::size_t ComputePaddingX(std::size_t stride, PixelType type, int width)
{
    const std::size_t row = ComputeStride(type, width);
    if (stride < row)
        throw std::invalid_argument("The stride is " + std::to_string(stride) +
                                    " bytes, a row needs " + std::to_string(row) + ".");
    if (stride > largestInt)
        throw std::length_error("A stride of " + std::to_string(stride) + " bytes is too long.");
    return stride - row;
}

std::size_t ComputeImageSize(std::size_t stride, int height)
{
    if (height < 1)
        throw std::invalid_argument("The height is " + std::to_string(height) +
                                    ", it must be at least 1.");
    if (stride > largestInt / static_cast<std::size_t>(height))
        throw std::length_error(std::to_string(height) + " rows of " + std::to_string(stride) +
                                " bytes are too many.");
    return stride * static_cast<std::size_t>(height);
}

} // namespace Ostria
