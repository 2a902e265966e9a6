// SPDX-License-Identifier: Apache-2.0
// The keys of the calibration steps.
#pragma once

namespace ColorCalibration {

/// Plain integers on purpose: the calibration interface takes any integer and answers for the
/// unknown ones too.
struct StepKey
{
    enum : int { Original = 0, DigitalGain = 1, WhiteBalance = 2, Matrix3x3 = 3, Bc6x2 = 4 };
};

} // namespace ColorCalibration
