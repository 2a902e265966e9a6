// SPDX-License-Identifier: Apache-2.0
// Black level and white balance, the stages before demosaicing.
#pragma once

#include "pipelinesettings.h"
#include "sensormodel.h"
#include "word.h"

#include <array>

namespace Cameras::Emulation {

/// Takes the sensor's pedestal away and stretches the rest to full scale, adds the black level, and
/// multiplies by the filter color's balance ratio (a mono sensor has none).
class MosaicCorrection
{
public:
    MosaicCorrection(const PipelineSettings& settings, const SensorModel& sensor);

    /// \param raw    count values of 0 to 4095
    /// \param words  receives count values
    void apply(const float* raw, int x, int y, int count, Word* words) const;

private:
    float m_pedestal;
    float m_stretch;
    float m_blackLevel;
    std::array<std::array<float, 2>, 2> m_ratio; // row, column of a mosaic cell
};

} // namespace Cameras::Emulation
