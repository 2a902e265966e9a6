// SPDX-License-Identifier: Apache-2.0
// Demosaicing that follows edges better than bilinear interpolation does.
#pragma once

#include "word.h"

#include <cstddef>

namespace Cameras::Emulation {

/// Replaces the interpolated channels of an image by gradient-corrected ones: the bilinear value
/// plus a share of the known channel's second derivative. Malvar, He, Cutler, "High-quality linear
/// interpolation for demosaicing of Bayer-patterned color images", ICASSP 2004. The outer two
/// pixels keep what they have.
/// \param mosaic         width * height values, the first one behind a red filter, green beside it
/// \param width, height  at least 5 for anything to happen
/// \param colors         3 * width * height values, bilinearly interpolated
void refineDemosaicing(const Word* mosaic, int width, int height, Word* colors);

} // namespace Cameras::Emulation
