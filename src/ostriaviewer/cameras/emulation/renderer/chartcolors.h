// SPDX-License-Identifier: Apache-2.0
// The chart as a thing to look at: what its surfaces reflect, and where.
#pragma once

#include "scene.h"

#include <array>
#include <cstddef>

namespace Cameras::Emulation {

constexpr int chartColumns = 6;
constexpr int chartRows = 4;
constexpr std::size_t chartPatches = 24;

/// The measured colors of the printed chart's 24 patches, row by row: linear light, 0 to 255, with
/// the primaries and the white of sRGB. They describe the thing before the camera; what a
/// calibration makes of it is none of a camera's business.
const std::array<std::array<double, 3>, chartPatches>& chartColors();

/// The black of the frame and of the gaps between the patches.
Light chartFrameColor();

/// What lies at a position of the chart's plane.
/// \param u, v  in cells: the 6 by 4 cells reach from 0 to 6 and from 0 to 4
/// \return  0 to 23 for a patch, or one of the two below
int chartSurface(double u, double v);
constexpr int chartFrame = 24;
constexpr int besideChart = 25;

/// Width of the frame around the cells, in cells.
constexpr double chartFrameWidth = 0.15;

} // namespace Cameras::Emulation
