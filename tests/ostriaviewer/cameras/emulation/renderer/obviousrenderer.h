// SPDX-License-Identifier: Apache-2.0
// The emulated camera once more, pixel by pixel in double precision: slow and obvious.
#pragma once

#include "pipelinesettings.h"
#include "scene.h"
#include "sensormodel.h"

#include <array>
#include <cstdint>
#include <vector>

namespace Cameras::Emulation {

/// The six-sector stage, sector by sector; not clamped.
std::array<double, 3> obviousSectors(const PipelineSettings& settings,
                                     const std::array<double, 3>& color);

/// Bilinear demosaicing, no test image, the whole sensor.
class ObviousRenderer
{
public:
    /// \param light  as large as the sensor
    ObviousRenderer(const SensorModel& sensor, LightImage light);

    /// \return  sixteenths of a 12-bit count, one value a pixel, before demosaicing
    std::vector<double> mosaic(const PipelineSettings& settings, std::uint64_t frame) const;

    /// \return  sixteenths of a 12-bit count, three values a pixel
    std::vector<double> colors(const PipelineSettings& settings, std::uint64_t frame) const;

private:
    double raw(const PipelineSettings& settings, std::uint64_t frame, int x, int y) const;

    SensorModel m_sensor;
    LightImage m_light;
};

} // namespace Cameras::Emulation
