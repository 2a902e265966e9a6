// SPDX-License-Identifier: Apache-2.0
// From words to the bytes of a pixel format.
#pragma once

#include "pixeltype.h"
#include "word.h"

#include <cstdint>

namespace Cameras::Emulation {

/// Rounds a row of one-channel pixels to 8 or 12 bits.
/// \param type  Mono8, Mono12, BayerRG8 or BayerRG12
/// \param out   room for count pixels
void packSamples(Ostria::PixelType type, const Word* values, int count, std::uint8_t* out);

/// Writes a row of colors.
///
/// Mono formats carry the luma of ITU-R BT.601. YUV422_8 has its coefficients and its limited range
/// (luma 16 to 235, color difference 16 to 240), each pair of pixels sharing the mean of its color
/// differences. Alpha is 255.
/// \param type   RGB8, BGR8, BGRa8, YUV422_8, Mono8 or Mono12
/// \param rgb    3 * count values; changed where the luma is taken
/// \param count  even for YUV422_8
/// \param out    room for count pixels
void packColors(Ostria::PixelType type, Word* rgb, int count, std::uint8_t* out);

} // namespace Cameras::Emulation
