// SPDX-License-Identifier: Apache-2.0
// A slow and obvious second decoder of pixels, and images of noise to feed both.
#pragma once

#include "ostriaimage.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace Ostria {

using Rgb = std::array<int, 3>;

/// Lets test names and messages show the type's name.
inline void PrintTo(PixelType type, std::ostream* out)
{
    *out << pixelTypeName(type);
}

struct NamedType
{
    PixelType type;
    std::uint32_t id; ///< from the published list of the naming convention
    const char* name;
};

const std::vector<NamedType>& allTypes();

/// The types that a condition holds for.
std::vector<PixelType> typesWhere(bool (*wanted)(PixelType));

bool isBayer(PixelType type);
bool isYuv(PixelType type);

/// The digits after the letters of the name: Mono12p has 12.
int depthOf(PixelType type);

/// The filter over a site, 'R', 'G' or 'B', from the two letters in the type's name, which are the
/// beginning of the first row.
char filterAt(PixelType type, int x, int y);

/// A pixel's only sample, for Mono and Bayer, at its own depth.
int slowSample(PixelType type, const std::uint8_t* row, int x);

/// A pixel's colour for all types but YUV, at its own depth.
Rgb slowPixel(PixelType type, const std::uint8_t* row, int x, int y);

/// A YUV 4:2:2 pixel by the formulas of ITU-R BT.601 for 16 to 235 and 16 to 240, not rounded and
/// not limited; luma below 16 is black.
std::array<double, 3> slowYuv(PixelType type, const std::uint8_t* row, int x);

std::vector<std::uint8_t> noise(std::size_t size, unsigned seed = 1);

/// An image of noise, padding included.
COstriaImage noiseImage(PixelType type, int width, int height, std::size_t paddingX = 0);

const std::uint8_t* rowOf(const COstriaImage& image, int y);

/// The channels of an RGB16 image's pixel from its bytes.
Rgb rgb16At(const COstriaImage& image, int x, int y);

/// Bytes of rows without their padding.
std::vector<std::uint8_t> rowBytes(const std::uint8_t* data, std::size_t stride, std::size_t row,
                                   int rows);

/// What a call that must throw says.
template <typename Exception, typename Call>
std::string messageOf(Call call)
{
    try {
        call();
    } catch (const Exception& exception) {
        return exception.what();
    } catch (...) {
        return "an exception of another type";
    }
    return "no exception";
}

} // namespace Ostria
