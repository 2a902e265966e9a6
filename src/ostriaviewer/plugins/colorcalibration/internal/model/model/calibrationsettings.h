// SPDX-License-Identifier: Apache-2.0
// What a calibration has computed for the camera.
#pragma once

#include "patchcolors.h"

#include <array>

namespace ColorCalibration {

/// The settings as computed, before the camera rounds them.
struct CalibrationSettings
{
    std::array<double, 3> whiteBalance{1.0, 1.0, 1.0}; ///< red, green, blue
    ColorMatrix colorMatrix = dlib::identity_matrix<double>(3);
    ColorAdjustment colorAdjustment = dlib::zeros_matrix<double>(12, 1);
    double gamma = 1.0;
};

} // namespace ColorCalibration
