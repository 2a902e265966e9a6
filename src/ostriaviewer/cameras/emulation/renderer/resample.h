// SPDX-License-Identifier: Apache-2.0
// A light image at another size.
#pragma once

#include "scene.h"

namespace Cameras::Emulation {

/// Each pixel gets the mean of the light on its area, the source's pixels being squares of constant
/// light. The shape is not kept.
/// \param source         at least one pixel
/// \param width, height  at least 1
LightImage resampled(const LightImage& source, int width, int height);

} // namespace Cameras::Emulation
