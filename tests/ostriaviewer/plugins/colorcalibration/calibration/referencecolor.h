// SPDX-License-Identifier: Apache-2.0
// Colour formulas written a second time, plainly and in long double, to check the engine against.
#pragma once

#include "patchcolors.h"

#include <array>

namespace Reference {

using Real = long double;
using Vector = std::array<Real, 3>;
using Colors = std::array<Vector, ColorCalibration::PatchCount>;

Colors fromPatchColors(const ColorCalibration::PatchColors& colors);

/// Linear RGB on 0 to 255 to Lab, white point D65.
Vector labOfLinearRgb(const Vector& rgb);

/// CIEDE2000 in degrees, step by step as in Sharma, Wu and Dalal (2005), section 2.
Real ciede2000(const Vector& lab1, const Vector& lab2);

} // namespace Reference
