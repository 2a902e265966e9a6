// SPDX-License-Identifier: Apache-2.0
// The part of a sensor that a frame shows.
#pragma once

#include "pipelinesettings.h"
#include "sensormodel.h"

namespace Cameras::Emulation {

/// A rectangle of the sensor, never empty.
struct Region
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// The region that settings ask for.
/// \throws std::invalid_argument  the settings do not suit the sensor, or a value is out of its
///         range or not finite
Region checkedRegion(const PipelineSettings& settings, const SensorModel& sensor);

/// The region and what demosaicing needs around it, as far as the sensor reaches. It begins at a
/// red filter if the region does.
Region withMargin(const Region& region, const SensorModel& sensor);

} // namespace Cameras::Emulation
