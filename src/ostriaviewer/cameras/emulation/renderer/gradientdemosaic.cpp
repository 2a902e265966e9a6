// SPDX-License-Identifier: Apache-2.0
// Demosaicing that follows edges better than bilinear interpolation does.
#include "gradientdemosaic.h"

#include <algorithm>

namespace Cameras::Emulation {
namespace {

/// The neighbours of a mosaic pixel, in the sums that the paper's kernels are made of.
struct Neighborhood
{
    Neighborhood(const Word* pixel, std::ptrdiff_t stride)
        : center(pixel[0])
        , beside(pixel[-1] + pixel[1])
        , aboveBelow(pixel[-stride] + pixel[stride])
        , diagonal(pixel[-stride - 1] + pixel[-stride + 1] + pixel[stride - 1] + pixel[stride + 1])
        , farBeside(pixel[-2] + pixel[2])
        , farAboveBelow(pixel[-2 * stride] + pixel[2 * stride])
    {}

    int center;
    int beside;
    int aboveBelow;
    int diagonal;
    int farBeside;
    int farAboveBelow;
};

/// \param sixteenths  a kernel's sum with weights that add up to 16
Word rounded(int sixteenths)
{
    return static_cast<Word>(std::clamp((sixteenths + 8) >> 4, 0, wordFullScale));
}

/// A pixel behind a red or blue filter: green, and the opposite of red and blue.
void refineColored(const Neighborhood& n, Word& green, Word& opposite)
{
    const int far = n.farBeside + n.farAboveBelow;
    green = rounded(8 * n.center + 4 * (n.beside + n.aboveBelow) - 2 * far);
    opposite = rounded(12 * n.center + 4 * n.diagonal - 3 * far);
}

/// A pixel behind a green filter: the color of the filters beside it, and of those above and below.
void refineGreen(const Neighborhood& n, Word& beside, Word& aboveBelow)
{
    const int base = 10 * n.center - 2 * n.diagonal;
    beside = rounded(base + 8 * n.beside - 2 * n.farBeside + n.farAboveBelow);
    aboveBelow = rounded(base + 8 * n.aboveBelow - 2 * n.farAboveBelow + n.farBeside);
}

} // namespace

void refineDemosaicing(const Word* mosaic, int width, int height, Word* colors)
{
    const std::ptrdiff_t stride = width;
    for (int y = 2; y < height - 2; ++y) {
        const bool redRow = y % 2 == 0;
        for (int x = 2; x < width - 2; ++x) {
            const Neighborhood neighborhood(mosaic + y * stride + x, stride);
            Word* rgb = colors + 3 * (y * stride + x);
            Word& rowColor = rgb[redRow ? 0 : 2];
            Word& otherColor = rgb[redRow ? 2 : 0];
            if ((x + y) % 2 == 0)
                refineColored(neighborhood, rgb[1], otherColor);
            else
                refineGreen(neighborhood, rowColor, otherColor);
        }
    }
}

} // namespace Cameras::Emulation
