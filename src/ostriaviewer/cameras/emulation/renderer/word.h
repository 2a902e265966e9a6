// SPDX-License-Identifier: Apache-2.0
// The number that goes from stage to stage inside an emulated camera.
#pragma once

#include "sensormodel.h"

#include <cstdint>

namespace Cameras::Emulation {

/// A channel's value between two stages: sixteenths of a 12-bit count. Every stage clamps to full
/// scale, as hardware does.
using Word = std::uint16_t;

constexpr int wordsPerCount = 16;
constexpr int wordFullScale = wordsPerCount * fullScale;

} // namespace Cameras::Emulation
