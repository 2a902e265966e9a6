// SPDX-License-Identifier: Apache-2.0
// Walks from the anchor block over the chart and fits the grid of patch centres.
#pragma once

#include "rgbbytes.h"

#include <QPoint>
#include <QVector>

namespace ColorCalibration {

/// Patch by patch, a least squares model of the grid (affine for the first five patches, bilinear
/// afterwards) predicts the next centre and seekPatchCenter corrects it on the green channel. The
/// last model rests on eight patches and gives the centres of all. Reentrant.
/// \param image  the smoothed image
/// \param block  nine patch centres as findAnchorBlock gives them
/// \return  24 centres in chart order, which may lie outside the image; empty if the block has not
///          nine points
QVector<QPoint> fitPatchCenters(const RgbBytes& image, const QVector<QPoint>& block);

} // namespace ColorCalibration
