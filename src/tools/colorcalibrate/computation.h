// SPDX-License-Identifier: Apache-2.0
// One run of the engine with all that is to be shown of it.
#pragma once

#include "calibrationsettings.h"
#include "patchdeltas.h"

#include <array>

namespace ColorCalibrate {

/// The colours behind one step of the chain.
struct StepResult
{
    const char* name;
    ColorCalibration::PatchColors colors;
    double meanDeltaE;
};

struct Computation
{
    ColorCalibration::CalibrationSettings settings;
    double meanDeltaE; ///< behind the last step
    std::array<StepResult, 5> steps;
    ColorCalibration::PatchColors targets;
    Deltas before;
    Deltas after;
};

/// Runs the whole chain.
/// \param measured  linear light, 0 to 255
/// \throws CommandError  the colours cannot be those of a usable image of the chart: the gray
///         patches are saturated or black, or a coloured patch has come out gray
Computation compute(const ColorCalibration::PatchColors& measured);

} // namespace ColorCalibrate
