// SPDX-License-Identifier: Apache-2.0
// The whole calibration written a second time, without the engine's code and without dlib's solver.
#pragma once

#include "referencecolor.h"

#include <vector>

namespace Reference {

/// Least squares of rows * x = right side by Householder reflections. Full rank only.
std::vector<Real> leastSquares(std::vector<std::vector<Real>> rows, std::vector<Real> rightSide);

/// The sector of a colour by its hue angle: 0 red to yellow up to 5 magenta to red.
int sectorByHueAngle(const Vector& rgb);

/// The six-sector correction as displacements of the colour's corner points, not clamped.
Vector adjust(const Vector& rgb, const std::array<Real, 12>& parameters);

Vector whiteBalanceGains(const Colors& colors);
std::array<Vector, 3> colorMatrix(const Colors& colors);
std::array<Real, 12> colorAdjustment(const Colors& colors);

struct Calibration
{
    Real digitalGain;
    Vector gains;
    std::array<Vector, 3> matrix;
    std::array<Real, 12> adjustment;
    std::array<Colors, 5> stepColors;
};

Calibration calibrate(const Colors& measured);

/// CIEDE2000 of a patch to its target.
Real distanceFromTarget(const Colors& colors, int patch);

Real meanDistanceFromTargets(const Colors& colors);

} // namespace Reference
