// SPDX-License-Identifier: Apache-2.0
// Finds the block of 3 by 3 patches whose colour ratios look most like the chart's.
#pragma once

#include "rgbbytes.h"

#include <QPoint>
#include <QVector>

namespace ColorCalibration {

/// Patches of the anchor block: columns 1 to 3 of the chart's rows 0 to 2, row by row.
inline constexpr int AnchorPatchCount = 9;

/// numerator / denominator of two bytes, in double precision and then rounded; 1 where the
/// denominator is 0.
float byteRatio(unsigned char numerator, unsigned char denominator);

/// Slides the block over the image at falling patch pitches, from a sixth of the width (or a
/// quarter of the height) down to an eighth of that, but never below 20 pixels. Each position is
/// scored by the normalised correlations of its R/G and of its B/G ratios with the chart's, without
/// removal of the mean, multiplied with each other. The best score of all stands; among equals the
/// larger pitch, then the smaller x, then the smaller y. Reentrant.
/// \param image  the smoothed image
/// \return  the nine patch centres in template order; all (0, 0) where nothing could be scored
QVector<QPoint> findAnchorBlock(const RgbBytes& image);

} // namespace ColorCalibration
