// SPDX-License-Identifier: Apache-2.0
// Decoding of one row of pixels into integers.
#pragma once

#include "pixeltype.h"

#include <cstdint>

namespace Ostria {

/// The single channel of Mono and Bayer pixels. Reentrant.
/// \param row        first byte of the row, of any alignment
/// \param x, count   the run of pixels, inside the row
/// \param leftShift  0 to 16 - bitDepth: by how much each value is shifted
/// \param out        room for count values
void decodeSamples(const PixelTypeInfo& info, const std::uint8_t* row, int x, int count,
                   int leftShift, std::uint16_t* out);

/// Red, green and blue of each pixel; the mosaic of Bayer pixels is not interpolated, they answer
/// their value in the channel of their filter and 0 in the others. Reentrant.
/// \param y    the row's number, which tells the filters of a mosaic
/// \param rgb  room for 3 * count values
void decodeColors(PixelType type, const PixelTypeInfo& info, const std::uint8_t* row, int x, int y,
                  int count, int leftShift, std::uint16_t* rgb);

} // namespace Ostria
