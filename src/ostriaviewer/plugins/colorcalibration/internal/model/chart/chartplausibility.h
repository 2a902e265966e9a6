// SPDX-License-Identifier: Apache-2.0
// Whether four corners can be those of an upright chart.
#pragma once

#include "colorcorrectionautochartfinderresult.h"

#include <QSize>

namespace ColorCalibration {

/// All corners lie inside the image, its far border included, and left is left of right and upper
/// is above lower. The lower left corner must not have a y of 0. Reentrant.
/// \param corners  its valid is not read
/// \param size     of the image in which the corners lie
bool isPlausibleChart(const ColorCorrectionAutoChartFinderResult& corners, const QSize& size);

} // namespace ColorCalibration
