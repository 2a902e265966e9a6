// SPDX-License-Identifier: Apache-2.0
// Which features a camera model has.
#pragma once

#include "cameramodel.h"
#include "featuretable.h"

namespace Cameras::Emulation {

/// All features of a model, with the values that it leaves the factory with. Reentrant.
FeatureTable modelFeatures(const CameraModel& model);

/// The parts of it, each of which appends its categories.
void addDeviceFeatures(FeatureTable& table, const CameraModel& model);
void addImageFormatFeatures(FeatureTable& table, const CameraModel& model);
void addAcquisitionFeatures(FeatureTable& table, const CameraModel& model);
void addAnalogFeatures(FeatureTable& table, const CameraModel& model);
void addColorFeatures(FeatureTable& table, const CameraModel& model);
void addUserSetFeatures(FeatureTable& table);

/// What a client of a transport layer needs to ask for images: acquisition mode, start, stop, and
/// the size of an image. They lie behind all others, which keep their registers.
void addTransportFeatures(FeatureTable& table);

/// While this holds, images are being taken.
Condition whileAcquiring();

} // namespace Cameras::Emulation
