// SPDX-License-Identifier: Apache-2.0
// Camera responses to the chart, as a camera with neutral settings would measure them.
#pragma once

#include "patchcolors.h"

/// \param seed  the same seed gives the same camera, light and noise on every machine
/// \return  the target colours seen through random channel crosstalk, a colour cast, the exposure
/// that
///          brightness control leaves, a
///          slight non-linearity and noise; 0 to 255
ColorCalibration::PatchColors simulatedResponse(unsigned seed);
