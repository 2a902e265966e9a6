// SPDX-License-Identifier: Apache-2.0
// RGB16 pixels to BGRa8 pixels.
#pragma once

#include <cstdint>

namespace Ostria {

/// The high byte of each channel in the order blue, green, red, and alpha 255. Reentrant.
/// \param rgb16  6 * count bytes, of any alignment
/// \param bgra8  room for 4 * count bytes, of any alignment; does not overlap rgb16
void packForDisplay(const std::uint8_t* rgb16, int count, std::uint8_t* bgra8);

} // namespace Ostria
