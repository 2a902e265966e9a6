// SPDX-License-Identifier: Apache-2.0
// Patterns that a camera delivers instead of what it sees.
#include "testpattern.h"

#include "sensor.h"

#include <array>

namespace Cameras::Emulation {
namespace {

constexpr int barCount = 8;
constexpr int barLevel = 3071; // 75 percent

int rampValue(std::int64_t position)
{
    return static_cast<int>(position % (fullScale + 1));
}

/// From white to black in falling order of luma.
int barValue(const SensorModel& sensor, int x, int y)
{
    static constexpr std::array<std::array<int, 3>, barCount> bars = {
        {{1, 1, 1}, {1, 1, 0}, {0, 1, 1}, {0, 1, 0}, {1, 0, 1}, {1, 0, 0}, {0, 0, 1}, {0, 0, 0}}};
    const int number = x * barCount / sensor.width;
    if (sensor.mono)
        return barLevel * (barCount - 1 - number) / (barCount - 1);
    const auto bar = bars[static_cast<std::size_t>(number)];
    return barLevel * bar[static_cast<std::size_t>(filterAt(x, y))];
}

} // namespace

void testPatternRow(TestImage pattern, const SensorModel& sensor, std::uint64_t frame, int x, int y,
                    int count, float* raw)
{
    const double scale = (fullScale - sensor.pedestal) / fullScale;
    const auto shift = pattern == TestImage::MovingGrayRamp
                           ? static_cast<std::int64_t>(frame % (fullScale + 1))
                           : std::int64_t(0);
    for (int i = 0; i < count; ++i) {
        const int value =
            pattern == TestImage::ColorBars ? barValue(sensor, x + i, y) : rampValue(shift + x + i);
        raw[i] = static_cast<float>(sensor.pedestal + scale * value);
    }
}

} // namespace Cameras::Emulation
