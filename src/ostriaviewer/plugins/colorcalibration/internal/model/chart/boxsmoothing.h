// SPDX-License-Identifier: Apache-2.0
// The chart finder's separable mean filter.
#pragma once

#include "rgbbytes.h"

#include <QImage>

namespace ColorCalibration {

/// The widest window that smooth forms.
inline constexpr int MaxBoxRadius = 1000;

/// Mean over 2 * radius + 1 samples along the columns, rounded to bytes, and then along the rows.
/// Pixels beyond an edge repeat the edge's. The means come from sums in single precision that
/// slide along each line; their rounding errors travel with them and are part of the result.
/// Reentrant. Needs 24 * min(2 * radius + 1, height) + 207 bytes for each column of the image
/// beside the result: the window's rows, and eight rows of the second pass with their sums.
/// \param image   any format; alpha plays no part
/// \param radius  taken as the nearest of 0 to MaxBoxRadius
/// \return  as wide and high as the image
RgbBytes smooth(const QImage& image, int radius);

} // namespace ColorCalibration
