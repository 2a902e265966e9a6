// SPDX-License-Identifier: Apache-2.0
// The number that goes from stage to stage inside an emulated camera.
#pragma once

#include "sensormodel.h"

#include <cstdint>

namespace Cameras::Emulation {

/// A channel's value between the groups of stages that are computed in one go: sixteenths of a
/// 12-bit count, clamped to full scale, as in hardware. Black level and white balance are one such
/// group, and so is what stands between demosaicing and look-up table.
using Word = std::uint16_t;

constexpr int wordsPerCount = 16;
constexpr int wordFullScale = wordsPerCount * fullScale;

/// The nearest word. Halves go up. Unlike the library's functions it vectorises everywhere.
/// \param value  0 to full scale
inline Word roundedToWord(float value)
{
    return static_cast<Word>(static_cast<int>(value + 0.5F));
}

} // namespace Cameras::Emulation
