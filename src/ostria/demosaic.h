// SPDX-License-Identifier: Apache-2.0
// Bilinear interpolation of Bayer mosaics, strip by strip.
#pragma once

#include "ostriaimage.h"

#include <cstddef>
#include <cstdint>

namespace Ostria {

/// The smallest mosaic that can be interpolated.
constexpr int smallestMosaicWidth = 4;
constexpr int smallestMosaicHeight = 3;

/// How many values of scratch memory demosaicRows needs for this many rows. Reentrant.
std::size_t demosaicScratch(int width, int rows);

/// Interpolates a strip of a mosaic to red, green and blue of 16 bits, aligned to the most
/// significant bit. The values are those of interpolating the whole image at once: the outermost
/// rows and columns are copies of their neighbours. Reentrant.
/// \param source   of a Bayer type, not smaller than the smallest mosaic
/// \param begin    first row, even
/// \param end      the row after the last one, at least begin + smallestMosaicHeight; even, or the
///                 image's height
/// \param scratch  demosaicScratch(width, end - begin) values
/// \param out      3 * width values for each row of the strip; no byte outside is written
/// \param stride   bytes from row to row of out, even
void demosaicRows(const COstriaImage& source, int begin, int end, std::uint16_t* scratch,
                  std::uint16_t* out, std::size_t stride);

} // namespace Ostria
