// SPDX-License-Identifier: Apache-2.0
// Scenes and sensors without anything that a test has not asked for.
#pragma once

#include "scene.h"
#include "sensormodel.h"

#include <cstddef>
#include <limits>

namespace Cameras::Emulation {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

/// White, even light.
inline SceneSettings evenLight()
{
    SceneSettings settings;
    settings.illuminant = {1.0, 1.0, 1.0};
    settings.lightGradient = 0.0;
    settings.backgroundTexture = 0.0;
    return settings;
}

/// The same light everywhere.
inline Scene uniformScene(float red, float green, float blue)
{
    return Scene(LightImage{1, 1, {red, green, blue}}, evenLight());
}

inline LightImage uniformLight(int width, int height, float red, float green, float blue)
{
    LightImage image{width, height, {}};
    for (int i = 0; i < width * height; ++i)
        image.rgb.insert(image.rgb.end(), {red, green, blue});
    return image;
}

/// Every pixel sees its own color alone, exactly, and 4095 counts are reached after 1000
/// microseconds.
inline SensorModel idealSensor(int width, int height)
{
    SensorModel sensor;
    sensor.width = width;
    sensor.height = height;
    sensor.fullScaleExposure = 1000.0;
    sensor.crosstalk = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    sensor.pedestal = 0.0;
    sensor.fullWell = 1e6;
    sensor.noiseEnabled = false;
    sensor.nonLinearityEnabled = false;
    sensor.vignettingEnabled = false;
    return sensor;
}

} // namespace Cameras::Emulation
