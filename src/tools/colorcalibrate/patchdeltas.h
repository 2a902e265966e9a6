// SPDX-License-Identifier: Apache-2.0
// How far the patches are from their targets.
#pragma once

#include "patchcolors.h"

#include <array>

namespace ColorCalibrate {

struct Deltas
{
    std::array<double, ColorCalibration::PatchCount> deltaE;
    std::array<double, ColorCalibration::PatchCount> deltaC;

    double meanDeltaE() const;
    double meanDeltaC() const;
    double maxDeltaE() const;
    double maxDeltaC() const;
};

/// CIEDE2000 with and without lightness of linear colours on 0 to 255 to the chart's targets.
Deltas deltasToTargets(const ColorCalibration::PatchColors& colors);

} // namespace ColorCalibrate
