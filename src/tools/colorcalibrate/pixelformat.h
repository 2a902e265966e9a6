// SPDX-License-Identifier: Apache-2.0
// Which images a camera can be calibrated by.
#pragma once

#include "icamera.h"

#include <QString>

namespace ColorCalibrate {

/// A camera may be set to images that have no color, or none that its corrections reach.
/// \param camera  open; needs no PixelFormat
/// \throws CommandError  its images are gray; says what to do
void requireColor(Core::CameraPoolComponents::ICamera& camera);

/// What to say where colors have stayed as they were.
/// \return  empty unless the camera sends what its sensor has seen
QString adviceOnPixelFormat(Core::CameraPoolComponents::ICamera& camera);

} // namespace ColorCalibrate
