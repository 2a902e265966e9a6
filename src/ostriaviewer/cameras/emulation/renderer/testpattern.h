// SPDX-License-Identifier: Apache-2.0
// Patterns that a camera delivers instead of what it sees.
#pragma once

#include "pipelinesettings.h"
#include "sensormodel.h"

#include <cstdint>

namespace Cameras::Emulation {

/// A run of one row's pixels as the sensor would deliver them, pedestal included.
/// \param pattern  not Off
/// \param raw      receives count values of 0 to 4095, the pattern's without pedestal being whole
void testPatternRow(TestImage pattern, const SensorModel& sensor, std::uint64_t frame, int x, int y,
                    int count, float* raw);

} // namespace Cameras::Emulation
