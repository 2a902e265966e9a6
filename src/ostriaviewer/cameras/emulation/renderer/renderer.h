// SPDX-License-Identifier: Apache-2.0
// The picture that an emulated camera takes of its scene.
#pragma once

#include "ostriaimage.h"
#include "pipelinesettings.h"
#include "scene.h"
#include "sensormodel.h"

#include <cstdint>
#include <memory>

namespace Cameras::Emulation {

/// Turns feature values into pixels: scene, lens, sensor, and the camera's own processing. See
/// docs/emulated-cameras.md for the physics.
///
/// The scene is projected once, when it is set; frames then take some milliseconds. Reentrant; one
/// renderer serves one thread at a time and keeps its scratch memory.
class Renderer
{
public:
    /// \throws std::invalid_argument  a property of the sensor is out of its range or not finite
    Renderer(const SensorModel& sensor, const Scene& scene);
    ~Renderer();
    Renderer(Renderer&&) noexcept;
    Renderer& operator=(Renderer&&) noexcept;

    const SensorModel& sensor() const;

    /// Puts another scene before the camera, effective with the next frame.
    void setScene(const Scene& scene);

    /// One frame. It depends on sensor, scene, settings and frame number alone: the same ones give
    /// the same pixels. A region shows the pixels that the whole frame shows there.
    /// \param frameNumber  selects the frame's noise
    /// \return  settings.pixelFormat, as large as the region, rows without padding
    /// \throws std::invalid_argument  the region leaves the sensor, the sensor has no such pixel
    ///         format, the format needs an even width, or a value is out of its range or not finite
    Ostria::COstriaImage render(const PipelineSettings& settings, std::uint64_t frameNumber);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace Cameras::Emulation
