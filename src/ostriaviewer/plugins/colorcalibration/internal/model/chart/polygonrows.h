// SPDX-License-Identifier: Apache-2.0
// The pixels inside a quadrilateral, row by row.
#pragma once

#include "trapezoidpoints.h"

#include <QSize>

#include <vector>

namespace ColorCalibration {

/// Pixels of one row that lie side by side.
struct PixelRun
{
    int y;
    int x;
    int count; ///< at least 1
};

/// The pixels of an image that lie inside a quadrilateral, without asking each of them.
///
/// A pixel belongs to it if QPolygon::containsPoint with Qt::OddEvenFill finds it inside and it
/// lies in the bounding rectangle less its last row and last column. The crossings of edges and
/// rows are computed in the same arithmetic as there, so the set is the same to the pixel, crossed
/// and flat quadrilaterals included. Reentrant.
/// \param imageSize  pixels; what lies outside of (0, 0) to it is left out
/// \return  top to bottom, in a row from left to right
std::vector<PixelRun> pixelRunsInside(const TrapezoidPoints& quadrilateral, const QSize& imageSize);

} // namespace ColorCalibration
