// SPDX-License-Identifier: Apache-2.0
// Three bytes a pixel, side by side: what the chart finder's steps hand to each other.
#pragma once

#include <cstddef>
#include <vector>

namespace ColorCalibration {

/// Red, green and blue on 0 to 255, row by row without padding. A plain value, reentrant.
struct RgbBytes
{
    static constexpr int Channels = 3;

    RgbBytes() = default;
    /// \param columns, lines  not negative; all samples start at 0
    RgbBytes(int columns, int lines)
        : width(columns)
        , height(lines)
        , samples(std::size_t(columns) * std::size_t(lines) * Channels)
    {}

    /// The pixel's red; green and blue follow. (x, y) must lie inside.
    const unsigned char* pixel(int x, int y) const { return samples.data() + offset(x, y); }
    unsigned char* pixel(int x, int y) { return samples.data() + offset(x, y); }

    int width = 0;
    int height = 0;
    std::vector<unsigned char> samples;

private:
    std::size_t offset(int x, int y) const
    {
        return (std::size_t(y) * std::size_t(width) + std::size_t(x)) * Channels;
    }
};

} // namespace ColorCalibration
