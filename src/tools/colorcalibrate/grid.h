// SPDX-License-Identifier: Apache-2.0
// The grid's outline as the user writes it.
#pragma once

#include "colorcorrectionautochartfinderresult.h"
#include "trapezoidpoints.h"

#include <QImage>
#include <QSize>
#include <QString>

namespace ColorCalibrate {

/// Reads four points "x,y x,y x,y x,y": upper left, upper right, lower left, lower right of the
/// chart, image pixels. The chart may lie in the image in any turn, but not mirrored.
/// \throws CommandError  WrongUsage: not four points of integers, or an outline that crosses
///         itself, is dented, mirrored or without area
ColorCalibration::TrapezoidPoints parseGrid(const QString& text);

/// \throws CommandError  a corner lies outside an image of this size
void requireInside(const ColorCalibration::TrapezoidPoints& grid, const QSize& image);

/// The corners that the chart finder has found.
/// \param image  size of the image that was searched, for the message
/// \throws CommandError  they are not valid, or cross or dent the outline
ColorCalibration::TrapezoidPoints
toGrid(const ColorCalibration::ColorCorrectionAutoChartFinderResult& found, const QSize& image);

/// Looks for the chart in the image, as the wizard does.
/// \throws CommandError  no chart was found
ColorCalibration::TrapezoidPoints findGrid(const QImage& image);

} // namespace ColorCalibrate
