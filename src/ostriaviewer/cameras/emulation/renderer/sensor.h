// SPDX-License-Identifier: Apache-2.0
// From light to the numbers of the sensor's converter.
#pragma once

#include "scene.h"
#include "sensormodel.h"

#include <array>
#include <cstdint>
#include <vector>

namespace Cameras::Emulation {

/// The color of a mosaic's filter: rows of red, green and of green, blue in turn ("RG").
/// \return  0 red, 1 green, 2 blue
constexpr int filterAt(int x, int y)
{
    return x % 2 + y % 2;
}

/// A sensor with its scene in focus. Everything that does not change from frame to frame is worked
/// out beforehand: what each pixel's filter lets through of the light that the lens brings to it.
/// Reentrant; one sensor serves one thread at a time and keeps its scratch memory.
class Sensor
{
public:
    /// \throws std::invalid_argument  a property is out of its range or not finite
    explicit Sensor(const SensorModel& model);

    const SensorModel& model() const { return m_model; }

    /// \param light  as large as the sensor
    void expose(const LightImage& light);

    /// A run of one row's pixels as the converter reads them.
    /// \param exposureTime  microseconds
    /// \param gain          dB
    /// \param raw           receives count values of 0 to 4095
    void readRow(double exposureTime, double gain, std::uint64_t frame, int x, int y, int count,
                 float* raw);

private:
    struct Readout;

    double falloff(int x, int y) const;
    std::array<double, 3> responsivity(int x, int y) const;
    Readout readout(double exposureTime, double gain) const;

    SensorModel m_model;
    std::vector<float> m_signal;
    std::array<std::vector<float>, 2> m_nonLinearity; // for even and odd rows
    std::vector<float> m_deviates;
};

} // namespace Cameras::Emulation
