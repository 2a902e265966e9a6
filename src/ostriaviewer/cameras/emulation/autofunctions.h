// SPDX-License-Identifier: Apache-2.0
// The automatic functions of an emulated camera: exposure, gain, white balance.
#pragma once

#include "featurevalues.h"
#include "ostriaimage.h"

#include <array>

namespace Cameras::Emulation {

class RegisterStore;

/// The mean level of each channel, as a share of full scale; thrice the same for a mono image.
using FrameLevels = std::array<double, 3>;

/// Whether a frame is to be measured. Reentrant.
bool isAnyAutoFunctionOn(const FeatureValues& values);

/// Measures a part of the rows. Reentrant.
/// \param image  valid
FrameLevels measureLevels(const Ostria::COstriaImage& image);

/// Lets each automatic function that is on take one step after a frame: exposure, then gain bring
/// the mean level to half of full scale, white balance brings red and blue to the level of green.
/// What was to act "Once" is "Off" afterwards. Reentrant.
void runAutoFunctions(const FrameLevels& levels, RegisterStore& store);

} // namespace Cameras::Emulation
