// SPDX-License-Identifier: Apache-2.0
// What an emulated camera's feature values mean for a frame.
#pragma once

#include "featurevalues.h"
#include "ostriaimage.h"
#include "pipelinesettings.h"

#include <chrono>

namespace Cameras::Emulation {

/// The picture that the features ask for. Features that a model does not have count as neutral.
/// Bayer formats come as the mosaic after white balance, or with "ProcessedRawEnable" as RGB8 that
/// is to be sampled by toMosaic. Reentrant.
PipelineSettings pipelineSettings(const FeatureValues& values);

/// The pixel type that is to be delivered. Reentrant.
Ostria::PixelType wantedPixelType(const FeatureValues& values);

/// Whether the mosaic is to be sampled from finished colors.
bool isProcessedRaw(const FeatureValues& values);

/// BayerRG8 or BayerRG12 with the colors of a finished RGB8 image.
/// \throws std::invalid_argument  the image is not RGB8, or the type is another
Ostria::COstriaImage toMosaic(const Ostria::COstriaImage& rgb, Ostria::PixelType type);

/// Bytes of a frame.
qint64 payloadSize(const FeatureValues& values);

/// How long the sensor takes light.
std::chrono::microseconds exposureTime(const FeatureValues& values);

/// The time from one frame's beginning to the next one's.
/// \param readoutTime  microseconds, the sensor's shortest
std::chrono::microseconds framePeriod(const FeatureValues& values, double readoutTime);

} // namespace Cameras::Emulation
