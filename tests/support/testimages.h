// SPDX-License-Identifier: Apache-2.0
// Camera images with pixels that a test chooses.
#pragma once

#include "ostriaimage.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <random>

using Rgb16 = std::array<std::uint16_t, 3>;

/// RGB16 with a colour for each pixel.
inline Ostria::COstriaImage makeRgb16(int width, int height,
                                      const std::function<Rgb16(int x, int y)>& colorAt)
{
    Ostria::COstriaImage image(Ostria::PixelType::RGB16, width, height);
    std::uint8_t* row = image.writableData();
    for (int y = 0; y < height; ++y, row += image.stride())
        for (int x = 0; x < width; ++x) {
            const Rgb16 color = colorAt(x, y);
            std::memcpy(row + static_cast<std::size_t>(x) * sizeof color, color.data(),
                        sizeof color);
        }
    return image;
}

inline Ostria::COstriaImage makeUniformRgb16(int width, int height, const Rgb16& color)
{
    return makeRgb16(width, height, [&color](int, int) { return color; });
}

/// Every channel of every pixel drawn from [lowest, highest].
inline Ostria::COstriaImage makeNoiseRgb16(int width, int height, unsigned seed, int lowest,
                                           int highest)
{
    std::mt19937 generator(seed);
    std::uniform_int_distribution<int> level(lowest, highest);
    const auto channel = [&] {
        return static_cast<std::uint16_t>(level(generator));
    };
    return makeRgb16(width, height, [&](int, int) {
        return Rgb16{channel(), channel(), channel()};
    });
}
