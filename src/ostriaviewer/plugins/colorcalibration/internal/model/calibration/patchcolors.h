// SPDX-License-Identifier: Apache-2.0
// The values that travel through the engine: a colour, the colours of the 24 patches, settings.
#pragma once

#include "dlibmatrix.h"

namespace ColorCalibration {

inline constexpr int PatchCount = 24;
inline constexpr int PatchColumns = 6;
inline constexpr int PatchRows = 4;

/// One row a patch in chart order (row by row from the upper left, six patches a row), columns
/// red, green, blue in linear light on 0 to 255, not quantised.
using PatchColors = dlib::matrix<double, PatchCount, 3>;

/// A single colour: R, G, B on 0 to 255, or X, Y, Z on 0 to 100, or L*, a*, b*.
using Color = dlib::matrix<double, 1, 3>;

/// Colour transformation: row r gives output channel r, column c weights input channel c.
using ColorMatrix = dlib::matrix<double, 3, 3>;

/// Six hues, then six saturations, each in the order red, yellow, green, cyan, blue, magenta.
/// Neutral are hue 0 and saturation 1.
using ColorAdjustment = dlib::matrix<double, 12, 1>;

} // namespace ColorCalibration
