// SPDX-License-Identifier: Apache-2.0
// Whether four corners can be those of an upright chart.
#pragma once

#include "colorcorrectionautochartfinderresult.h"

#include <QPoint>
#include <QSize>

namespace ColorCalibration {

/// The lower left corner's own rule. Its y must not be 0, while any negative one passes: that one
/// falls at the order of the corners. Reentrant.
bool isLowerLeftWithin(const QPoint& point, const QSize& size);

/// All corners lie inside the image, its far border included, and left is left of right and upper
/// is above lower. Reentrant.
/// \param corners  its valid is not read
/// \param size     of the image in which the corners lie
bool isPlausibleChart(const ColorCorrectionAutoChartFinderResult& corners, const QSize& size);

} // namespace ColorCalibration
