// SPDX-License-Identifier: Apache-2.0
// From the pixels inside a patch to its colour.
#include "patchmeasurement.h"

#include "polygonrows.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <vector>

namespace ColorCalibration {
namespace {

using Levels = std::vector<std::uint16_t>;

std::size_t pixelCount(const std::vector<PixelRun>& runs)
{
    return std::accumulate(runs.begin(), runs.end(), std::size_t{0},
                           [](std::size_t sum, const PixelRun& run) {
                               return sum + static_cast<std::size_t>(run.count);
                           });
}

/// The largest channel of each pixel, run after run.
Levels largestChannels(const std::vector<PixelRun>& runs, std::size_t count,
                       const Ostria::COstriaImage& image)
{
    int longest = 0;
    for (const PixelRun& run : runs)
        longest = std::max(longest, run.count);
    std::vector<std::uint16_t> rgb(3 * static_cast<std::size_t>(longest));

    Levels levels(count);
    std::uint16_t* level = levels.data();
    for (const PixelRun& run : runs) {
        image.readRow(run.x, run.y, run.count, rgb.data());
        for (int i = 0; i < run.count; ++i) {
            const std::uint16_t* pixel = &rgb[3 * static_cast<std::size_t>(i)];
            level[i] = std::max(pixel[0], std::max(pixel[1], pixel[2]));
        }
        level += run.count;
    }
    return levels;
}

/// The place of a value in sorted order: its level and how many equals stand before it.
struct Rank
{
    std::uint16_t level;
    std::size_t equalsBefore;
};

/// Finds the bin that holds the element with this rank, and makes the rank one within the bin.
template <typename Histogram>
std::size_t findBin(const Histogram& histogram, std::size_t& rank)
{
    std::size_t bin = 0;
    while (rank >= histogram[bin])
        rank -= histogram[bin++];
    return bin;
}

/// Two passes over 256 bins, first of the high bytes, then of the low bytes below the one found:
/// linear in the number of pixels, whatever their order.
Rank rankOf(const Levels& levels, std::size_t index)
{
    std::array<std::size_t, 256> highBytes{};
    for (const std::uint16_t level : levels)
        ++highBytes[level >> 8];
    const std::size_t high = findBin(highBytes, index);

    std::array<std::size_t, 256> lowBytes{};
    for (const std::uint16_t level : levels)
        if (static_cast<std::size_t>(level >> 8) == high)
            ++lowBytes[level & 0xFF];
    const std::size_t low = findBin(lowBytes, index);
    return {static_cast<std::uint16_t>(high << 8 | low), index};
}

std::size_t indexOf(const Levels& levels, Rank rank)
{
    auto found = std::find(levels.begin(), levels.end(), rank.level);
    for (; rank.equalsBefore > 0; --rank.equalsBefore)
        found = std::find(found + 1, levels.end(), rank.level);
    return static_cast<std::size_t>(found - levels.begin());
}

Ostria::PixelReading readPixelAt(const Ostria::COstriaImage& image,
                                 const std::vector<PixelRun>& runs, std::size_t index)
{
    auto run = runs.begin();
    while (index >= static_cast<std::size_t>(run->count)) {
        index -= static_cast<std::size_t>(run->count);
        ++run;
    }
    return image.readPixel(run->x + static_cast<int>(index), run->y);
}

} // namespace

bool measurePatch(const TrapezoidPoints& patch, const Ostria::COstriaImage& image, int divisor,
                  QColor& out)
{
    const std::vector<PixelRun> runs = pixelRunsInside(patch, {image.width(), image.height()});
    const std::size_t count = pixelCount(runs);
    if (count < MinimumPatchPixels)
        return false;

    const Levels levels = largestChannels(runs, count, image);
    const std::size_t median = indexOf(levels, rankOf(levels, count / 2));
    const Ostria::PixelReading pixel = readPixelAt(image, runs, median);
    out.setRedF(static_cast<double>(pixel.red) / divisor);
    out.setGreenF(static_cast<double>(pixel.green) / divisor);
    out.setBlueF(static_cast<double>(pixel.blue) / divisor);
    return true;
}

} // namespace ColorCalibration
