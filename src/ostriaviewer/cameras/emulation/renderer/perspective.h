// SPDX-License-Identifier: Apache-2.0
// How a lens maps the plane of the chart onto the sensor.
#pragma once

#include "scene.h"

#include <array>

namespace Cameras::Emulation {

/// A pinhole's view of the chart's plane, in both directions. Plane positions are in cells of the
/// chart, (0, 0) its upper left corner. Immutable; reentrant.
class Perspective
{
public:
    struct PlanePoint
    {
        double u = 0.0;
        double v = 0.0;
        bool visible = false; ///< false above the plane's horizon
    };

    /// \param settings       the chart's place is used
    /// \param width, height  of the sensor in pixels
    /// \throws std::invalid_argument  a part of the chart lies beside or behind the lens
    Perspective(const SceneSettings& settings, int width, int height);

    SensorPoint toSensor(double u, double v) const;
    PlanePoint toPlane(double x, double y) const;

private:
    using Matrix = std::array<double, 9>;

    void checkBeforeLens() const;

    Matrix m_toSensor{};
    Matrix m_toPlane{};
};

} // namespace Cameras::Emulation
