// SPDX-License-Identifier: Apache-2.0
// The colours of the 24 patches of the chart.
#pragma once

#include "dlibmatrix.h"

namespace ColorCalibration {

inline constexpr int PatchCount = 24;
inline constexpr int PatchColumns = 6;
inline constexpr int PatchRows = 4;

/// One row a patch in chart order (row by row from the upper left, six patches a row), columns
/// red, green, blue in linear light on 0 to 255, not quantised.
using PatchColors = dlib::matrix<double, PatchCount, 3>;

} // namespace ColorCalibration
